// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/thread_clock.h"

#include <QObject>
#include <QTimer>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <ctime>

#include <execinfo.h>

// Ticks in the event loop of its thread, and measures the longest time, for that thread, without a tick. At
// `tooLong`, prints the stack of the thread on standard error, for addr2line.
class Heartbeat : public QObject
{
    Q_OBJECT
public:
    explicit Heartbeat(std::chrono::nanoseconds tooLong = std::chrono::milliseconds(100))
        : m_tooLong(tooLong.count())
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &Heartbeat::beat);
        watchThread();
        start();
    }
    ~Heartbeat() override { ::timer_delete(m_watch); }
    Q_DISABLE_COPY_MOVE(Heartbeat)

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
        watchFor(m_tooLong);
    }
    void watchThread()
    {
        std::array<void *, 1> unused{};
        ::backtrace(unused.data(), 1); // loads its library now
        struct sigaction action = {};
        action.sa_sigaction = &Heartbeat::printStack;
        action.sa_flags = SA_SIGINFO | SA_RESTART;
        ::sigaction(SIGUSR2, &action, nullptr);
        sigevent event = {};
        event.sigev_notify = SIGEV_THREAD_ID;
        event.sigev_signo = SIGUSR2;
        event.sigev_value.sival_ptr = this;
        event._sigev_un._tid = static_cast<pid_t>(::syscall(SYS_gettid));
        ::timer_create(CLOCK_MONOTONIC, &event, &m_watch);
    }
    void watchFor(qint64 nanoseconds)
    {
        const itimerspec once{{}, {nanoseconds / 1'000'000'000, nanoseconds % 1'000'000'000}};
        ::timer_settime(m_watch, 0, &once, nullptr);
    }
    static void printStack(int, siginfo_t *info, void *)
    {
        auto *heart = static_cast<Heartbeat *>(info->si_value.sival_ptr);
        const qint64 gap = heart->m_clock.nanoseconds();
        if (gap < heart->m_tooLong) { // it waited for the processor
            heart->watchFor(heart->m_tooLong - gap);
            return;
        }
        std::array<void *, 64> frames{};
        ::backtrace_symbols_fd(frames.data(), ::backtrace(frames.data(), int(frames.size())), STDERR_FILENO);
    }

    QTimer m_timer;
    ThreadClock m_clock;
    qint64 m_longest = 0;   // nanoseconds
    const qint64 m_tooLong; // nanoseconds
    timer_t m_watch{};
};
