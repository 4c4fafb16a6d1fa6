// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace host {

// Replaces the pages during a long operation: shows what is awaited, the progress if it is known, and a
// button to stop waiting.
class WaitingPage : public QWidget
{
    Q_OBJECT
public:
    explicit WaitingPage(QWidget *parent = nullptr);

    // `cancel` is the label of the button.
    void setTask(const QString &text, const QString &cancel);
    // The progress in bytes; an unknown total (0 or less) shows an indeterminate bar.
    void setProgress(qint64 done, qint64 total);
    // Disables the button, which has been pressed, and shows `text`, which describes what is being done.
    void setCancelling(const QString &text);
    QString text() const;
    QPushButton *cancelButton() const { return m_cancel; }

Q_SIGNALS:
    void cancelled();

private:
    QLabel *m_text; // a new one for each text
    QLabel *m_amount;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};

} // namespace host
