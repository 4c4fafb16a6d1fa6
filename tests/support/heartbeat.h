// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

// Beats in the event loop of the thread that it lives on, and tells the longest time without a beat. Time in
// which the thread could have run, but other programs had the processor, is not counted.
class Heartbeat : public QObject
{
    Q_OBJECT
public:
    Heartbeat()
    {
        const auto path = QStringLiteral("/proc/self/task/%1/schedstat").arg(::syscall(SYS_gettid));
        m_schedule = ::open(path.toLatin1().constData(), O_RDONLY | O_CLOEXEC);
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &Heartbeat::beat);
        start();
    }
    ~Heartbeat() override { ::close(m_schedule); }

    // Begins anew, as after something that the test does itself.
    void start()
    {
        m_longest = 0;
        m_clock.start();
        m_kept = waitedForProcessor();
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
        const qint64 kept = waitedForProcessor();
        m_longest = std::max(m_longest, m_clock.nsecsElapsed() - (kept - m_kept));
        m_clock.start();
        m_kept = kept;
    }
    // Nanoseconds since the thread began: the second of three numbers.
    qint64 waitedForProcessor() const
    {
        std::array<char, 80> text{};
        if (::pread(m_schedule, text.data(), text.size() - 1, 0) <= 0)
            return 0;
        char *second = nullptr;
        (void)std::strtoll(text.data(), &second, 10);
        return std::strtoll(second, nullptr, 10);
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_longest = 0; // nanoseconds
    qint64 m_kept = 0;
    int m_schedule = -1;
};
