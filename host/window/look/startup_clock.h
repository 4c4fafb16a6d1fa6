// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

class QWidget;

namespace host {

// Waits for the first paint of a window to be done and on the screen, then tells. Lives until then at least.
class FirstPaint : public QObject
{
    Q_OBJECT
public:
    explicit FirstPaint(QWidget *window);

Q_SIGNALS:
    void done();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_seen = false;
};

// Tells when nothing has been painted in a window for a moment: its animations are over. Deletes itself then.
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

// How long the program has run and what memory it uses, as of now.
struct StartupFigures
{
    // Since the moment that KELMAR_T0_NS gives (nanoseconds of CLOCK_MONOTONIC), else since the start that
    // the kernel has noted, to the hundredth of a second.
    double milliseconds = 0;
    qint64 residentKilobytes = 0;

    static StartupFigures now();
};

// The output of --startup-time: four tab-separated lines with a name, a number and a unit.
QString startupReport(const StartupFigures &firstPaint, const StartupFigures &optionsPainted);

} // namespace host
