// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

namespace host {

class DialogButton;

// Shows in the footer what the dialog is waiting for and, when this takes longer, an indeterminate progress
// bar and the button "Do Not Wait"; or what is being done while the dialog can be used. Otherwise empty.
class WaitSign : public QWidget
{
    Q_OBJECT
public:
    explicit WaitSign(QWidget *parent = nullptr);
    ~WaitSign() override;
    // Replaces the previous text until the next end().
    void begin(const QString &what);
    void end();
    // Adds a text, which is announced, until end().
    void addNote(const QString &note);
    // Shows the progress bar, and announces the text.
    void showMoving();

public Q_SLOTS:
    void offerStop();

Q_SIGNALS:
    void stopped();

private:
    QLabel *m_text;
    QLabel *m_note;
    QProgressBar *m_bar;
    DialogButton *m_stop;
    bool m_isShowing = false;
};

} // namespace host
