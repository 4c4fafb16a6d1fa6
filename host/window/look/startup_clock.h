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

// "process start to first paint" in milliseconds and the memory in use, one tab-separated line each, as of
// now. The start is the moment that KELMAR_T0_NS gives (nanoseconds of CLOCK_MONOTONIC), else the one the
// kernel has noted, which it does to the hundredth of a second.
QString startupReport();

} // namespace host
