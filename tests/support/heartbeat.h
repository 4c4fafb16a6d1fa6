// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/thread_clock.h"

#include <QObject>
#include <QTimer>

#include <algorithm>
#include <chrono>

// Beats in the event loop of the thread that it lives on, and tells the longest time, for that thread,
// without a beat.
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

    // Begins anew, as after something that the test does itself.
    void start()
    {
        m_longest = 0;
        m_clock.restart();
        m_timer.start(std::chrono::milliseconds(5));
    }
    // In milliseconds, with the time since the last beat.
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
