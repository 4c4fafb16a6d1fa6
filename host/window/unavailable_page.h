// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace host {

// Replaces all pages if there is no printer to show: the reason, and a way to retry.
class UnavailablePage : public QWidget
{
    Q_OBJECT
public:
    explicit UnavailablePage(QWidget *parent = nullptr);
    void setReason(const QString &reason);

Q_SIGNALS:
    void retryWanted();

private:
    QLabel *m_reason;
    QPushButton *m_retry;
};

} // namespace host
