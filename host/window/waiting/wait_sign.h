// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;

namespace host {

class DialogButton;

// In the footer: what the dialog waits for right now, and once that takes longer, something that moves and a
// button not to wait; or what is made while the dialog can be used. Shows nothing else.
class WaitSign : public QWidget
{
    Q_OBJECT
public:
    explicit WaitSign(QWidget *parent = nullptr);
    ~WaitSign() override;
    // In place of what was shown before. Ends with the next end().
    void begin(const QString &what);
    void end();
    // Says something more, until end().
    void addNote(const QString &note);
    // That it goes on.
    void showMoving();

public Q_SLOTS:
    void offerStop();

Q_SIGNALS:
    void stopped();

private:
    QLabel *m_text;
    QProgressBar *m_bar;
    DialogButton *m_stop;
    bool m_isShowing = false;
};

} // namespace host
