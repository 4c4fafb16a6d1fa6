// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/startup_clock.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QWidget>

#include <ctime>
#include <unistd.h>

namespace host {

namespace {

constexpr qint64 nanosecondsASecond = 1'000'000'000;
constexpr int startTimeField = 21; // in /proc/self/stat, counted from 0

qint64 now(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return time.tv_sec * nanosecondsASecond + time.tv_nsec;
}

qint64 nanosecondsSinceStart()
{
    bool given = false;
    const qint64 start = qgetenv("KELMAR_T0_NS").toLongLong(&given);
    if (given)
        return now(CLOCK_MONOTONIC) - start;
    QFile stat(QStringLiteral("/proc/self/stat"));
    if (!stat.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray line = stat.readAll();
    // The second field is the program's name in parentheses, which may contain spaces.
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    const qint64 ticks = fields.value(startTimeField - 2).toLongLong();
    return now(CLOCK_BOOTTIME) - ticks * (nanosecondsASecond / sysconf(_SC_CLK_TCK));
}

// Read from /proc/self/smaps_rollup, which is exact; the value in /proc/self/status may differ by a megabyte.
qint64 residentKilobytes()
{
    QFile rollup(QStringLiteral("/proc/self/smaps_rollup"));
    if (!rollup.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : rollup.readAll().split('\n')) {
        if (line.startsWith("Rss:"))
            return line.mid(4).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

} // namespace

FirstPaint::FirstPaint(QWidget *window) : QObject(window)
{
    window->installEventFilter(this);
}

bool FirstPaint::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // The window is painted after this filter has returned, and flushed before the queued call.
        QMetaObject::invokeMethod(this, &FirstPaint::done, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

Settled::Settled(QWidget *window) : QObject(window)
{
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(std::chrono::milliseconds(200)); // shorter than the blink time of a text cursor
    connect(&m_quiet, &QTimer::timeout, this, &Settled::done);
    connect(&m_quiet, &QTimer::timeout, this, &QObject::deleteLater);
    QCoreApplication::instance()->installEventFilter(this);
    m_quiet.start();
}

bool Settled::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && m_quiet.isActive())
        m_quiet.start();
    return QObject::eventFilter(watched, event);
}

StartupFigures StartupFigures::now()
{
    const qint64 nanoseconds = nanosecondsSinceStart(); // before measuring the memory, which takes a while
    return {static_cast<double>(nanoseconds) / 1e6, host::residentKilobytes()};
}

QString startupReport(const StartupFigures &firstPaint, const StartupFigures &optionsPainted)
{
    return QStringLiteral("process start to first paint\t%1\tms\nresident memory at first paint\t%2\tkB\n"
                          "process start to options painted\t%3\tms\nresident memory with options\t%4\tkB\n")
        .arg(firstPaint.milliseconds, 0, 'f', 3)
        .arg(firstPaint.residentKilobytes)
        .arg(optionsPainted.milliseconds, 0, 'f', 3)
        .arg(optionsPainted.residentKilobytes);
}

} // namespace host
