// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/thread_clock.h"

#include <QObject>
#include <QTimer>

#include <algorithm>
#include <chrono>

// Ticks in the event loop of its thread, and measures the longest time, for that thread, without a tick.
class Heartbeat : public QObject
{
    Q_OBJECT
public:
    Heartbeat()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &Heartbeat::beat);
        start();
    }

    // Restarts the measurement, for example after an action of the test itself.
    void start()
    {
        m_longest = 0;
        m_clock.restart();
        m_timer.start(std::chrono::milliseconds(5));
    }
    // In milliseconds, including the time since the last tick.
    qint64 longestGap()
    {
        beat();
        return m_longest / 1'000'000;
    }

private:
    void beat()
    {
        m_longest = std::max(m_longest, m_clock.nanoseconds());
        m_clock.restart();
    }

    QTimer m_timer;
    ThreadClock m_clock;
    qint64 m_longest = 0; // nanoseconds
};
