// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace host {

// In place of the pages while something takes its time: what is waited for, how far it has got where that is
// known, and a way not to wait.
class WaitingPage : public QWidget
{
    Q_OBJECT
public:
    explicit WaitingPage(QWidget *parent = nullptr);

    // `cancel` is the label of the button.
    void setTask(const QString &text, const QString &cancel);
    // How much of `total` is done, in bytes; an unknown total (0 or less) moves without telling how far.
    void setProgress(qint64 done, qint64 total);
    // No more is to be had by pressing the button; `text` says what is going on.
    void setCancelling(const QString &text);
    QString text() const;
    QPushButton *cancelButton() const { return m_cancel; }

Q_SIGNALS:
    void cancelled();

private:
    QLabel *m_text;
    QLabel *m_amount;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
};

} // namespace host
