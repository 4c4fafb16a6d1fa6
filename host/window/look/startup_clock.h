// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

class QWidget;

namespace host {

// Reports when the first paint of a window is complete and visible. Must live until then.
class FirstPaint : public QObject
{
    Q_OBJECT
public:
    explicit FirstPaint(QWidget *window);

Q_SIGNALS:
    void done();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

// Emits done() when nothing has been painted for a short time, so that animations have ended. Then deletes
// itself.
class Settled : public QObject
{
    Q_OBJECT
public:
    explicit Settled(QWidget *window);

Q_SIGNALS:
    void done();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QTimer m_quiet;
};

// The run time and memory of the program at the current time.
struct StartupFigures
{
    // Since the time in KELMAR_T0_NS (nanoseconds of CLOCK_MONOTONIC), else since the start time recorded by
    // the kernel, with a resolution of 10 ms.
    double milliseconds = 0;
    qint64 residentKilobytes = 0;

    static StartupFigures now();
};

// The output of --startup-time: four lines, each with a name, a number and a unit, separated by tabs.
QString startupReport(const StartupFigures &firstPaint, const StartupFigures &optionsPainted);

} // namespace host
