// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace host {

// How the service starts a dialog, how many there may be at a time, and when it is time to leave. Every
// request under way holds one Use.
class ServiceLife : public QObject
{
    Q_OBJECT
public:
    static constexpr int mostRequests = 32;

    ServiceLife(const QString &dialogProgram, std::chrono::milliseconds idleTime);

    const QString &dialogProgram() const { return m_dialogProgram; }
    bool isFull() const { return m_uses >= mostRequests; }
    bool isUsed() const { return m_uses > 0; }
    // Something has happened: the idle time begins anew.
    void touch();

    // While it lives the service is in use.
    class Use
    {
    public:
        explicit Use(ServiceLife &life) : m_life(life) { ++m_life.m_uses; }
        ~Use()
        {
            --m_life.m_uses;
            m_life.touch();
        }
        Use(const Use &) = delete;
        Use &operator=(const Use &) = delete;

    private:
        ServiceLife &m_life;
    };

Q_SIGNALS:
    void idle();

private:
    QString m_dialogProgram;
    QTimer m_timer;
    int m_uses = 0;
};

} // namespace host
