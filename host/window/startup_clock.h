// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>

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

// "process start to first paint" in milliseconds and the memory in use, one tab-separated line each, as of
// now. The start is the moment that KELMAR_T0_NS gives (nanoseconds of CLOCK_MONOTONIC), else the one the
// kernel has noted, which it does to the hundredth of a second.
QString startupReport();

} // namespace host
