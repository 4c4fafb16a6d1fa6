// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace host {

// Starts dialog processes, limits the number of requests, and detects when the service has been idle long
// enough to exit. Each active request holds one Use.
class ServiceLife : public QObject
{
    Q_OBJECT
public:
    static constexpr int mostRequests = 32;
    static constexpr int mostRequestsOfOne = 8; // of one application, or of the queue

    ServiceLife(const QString &dialogProgram, std::chrono::milliseconds idleTime);

    const QString &dialogProgram() const { return m_dialogProgram; }
    // The reason why a further request of `client` is refused; null if it is admitted. A client is an
    // application ID, or the queue. Logs a refusal.
    QString refusal(const QString &client) const;
    bool isUsed() const { return m_uses > 0; }
    // Restarts the idle timer.
    void touch();

    // Counts one request of `client` during its lifetime.
    class Use
    {
    public:
        Use(ServiceLife &life, const QString &client);
        ~Use();
        Use(const Use &) = delete;
        Use &operator=(const Use &) = delete;

    private:
        ServiceLife &m_life;
        QString m_client;
    };

Q_SIGNALS:
    void idle();

private:
    QString m_dialogProgram;
    QTimer m_timer;
    QHash<QString, int> m_usesOf; // by client; clients without requests are removed
    int m_uses = 0;
};

} // namespace host
