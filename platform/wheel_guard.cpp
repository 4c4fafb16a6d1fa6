// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/wheel_guard.h"

#include <QEvent>
#include <QWidget>

namespace platform {

namespace {

class WheelGuard : public QObject
{
protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
            return false;
        event->ignore(); // the parent receives it
        return true;
    }
};

} // namespace

void guardFromWheel(QWidget *control)
{
    static WheelGuard guard; // of all controls
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(&guard);
}

} // namespace platform
