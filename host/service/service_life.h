// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace host {

// Knows the dialog program, limits the number of requests, and decides when the service has been idle long
// enough to leave. Every request under way holds one Use.
class ServiceLife : public QObject
{
    Q_OBJECT
public:
    static constexpr int mostRequests = 32;
    static constexpr int mostRequestsOfOne = 8; // of one application, or of the queue

    ServiceLife(const QString &dialogProgram, std::chrono::milliseconds idleTime);

    const QString &dialogProgram() const { return m_dialogProgram; }
    // Why no further request of `client` is admitted, in words; null when it is. A client is an application,
    // by its id, or the queue. Logs a refusal.
    QString refusal(const QString &client) const;
    bool isUsed() const { return m_uses > 0; }
    // Restarts the idle time.
    void touch();

    // Counts one request of `client` as long as it lives.
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
    QHash<QString, int> m_usesOf; // by client; without entries of 0
    int m_uses = 0;
};

} // namespace host
