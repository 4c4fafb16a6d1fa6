// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QEvent>
#include <QFile>
#include <QObject>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <ctime>

// Reports when a window with complete contents has been painted for the first time, in the format of
// `kelmar-print --startup-time`, and ends the program. The launcher passes the start time, CLOCK_MONOTONIC in
// nanoseconds, in KELMAR_T0_NS.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget *window) : QObject(window), m_window(window)
    {
        window->installEventFilter(this);
    }

    static long residentKilobytes()
    {
        QFile rollup(QStringLiteral("/proc/self/smaps_rollup"));
        if (!rollup.open(QIODevice::ReadOnly))
            return 0;
        const QList<QByteArray> lines = rollup.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("Rss:"))
                return line.mid(4).trimmed().split(' ').first().toLong();
        }
        return 0;
    }

    static double sinceStartMilliseconds()
    {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        const char *start = std::getenv("KELMAR_T0_NS");
        const long long nowNs = now.tv_sec * 1000000000LL + now.tv_nsec;
        return start ? static_cast<double>(nowNs - std::atoll(start)) / 1e6 : 0.0;
    }

    [[noreturn]] static void report()
    {
        std::printf("process start to options painted\t%.3f\tms\nresident memory with options\t%ld\tkB\n",
                    sinceStartMilliseconds(), residentKilobytes());
        std::fflush(stdout);
        std::_Exit(0);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == m_window && event->type() == QEvent::Paint && !m_seen) {
            m_seen = true;
            // The backing store is flushed after this event; a zero timer runs after the flush.
            QTimer::singleShot(0, this, [] { report(); });
        }
        return false;
    }

private:
    QWidget *m_window;
    bool m_seen = false;
};
