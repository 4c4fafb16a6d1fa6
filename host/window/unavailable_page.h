// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace host {

// In place of everything while there is no printer to show: why, and a way to try again.
class UnavailablePage : public QWidget
{
    Q_OBJECT
public:
    explicit UnavailablePage(QWidget *parent = nullptr);
    void setReason(const QString &reason);
    QString reason() const;
    QPushButton *retryButton() const { return m_retry; }

Q_SIGNALS:
    void retryWanted();

private:
    QLabel *m_reason;
    QPushButton *m_retry;
};

} // namespace host
