// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QElapsedTimer>
#include <QString>

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

// Measures time from the point of view of the thread that created the clock: time in which the thread could
// have run, but other programs used the processor, is excluded.
class ThreadClock
{
public:
    ThreadClock()
    {
        const auto path = QStringLiteral("/proc/self/task/%1/schedstat").arg(::syscall(SYS_gettid));
        m_schedule = ::open(path.toLatin1().constData(), O_RDONLY | O_CLOEXEC);
        restart();
    }
    ~ThreadClock() { ::close(m_schedule); }
    ThreadClock(const ThreadClock &) = delete;
    ThreadClock &operator=(const ThreadClock &) = delete;

    void restart()
    {
        m_clock.start();
        m_kept = waitedForProcessor();
    }
    // Since the clock was created or restarted.
    qint64 nanoseconds() const { return m_clock.nsecsElapsed() - (waitedForProcessor() - m_kept); }
    qint64 milliseconds() const { return nanoseconds() / 1'000'000; }

private:
    // Nanoseconds since the thread started: the second of three numbers.
    qint64 waitedForProcessor() const
    {
        std::array<char, 80> text{};
        if (::pread(m_schedule, text.data(), text.size() - 1, 0) <= 0)
            return 0;
        char *second = nullptr;
        (void)std::strtoll(text.data(), &second, 10);
        return std::strtoll(second, nullptr, 10);
    }

    QElapsedTimer m_clock;
    qint64 m_kept = 0; // when it was restarted
    int m_schedule = -1;
};
