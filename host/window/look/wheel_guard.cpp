// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/wheel_guard.h"

#include <QEvent>
#include <QWidget>

namespace host {

namespace {

// Owned by the control.
class WheelGuard : public QObject
{
public:
    explicit WheelGuard(QWidget *control) : QObject(control), m_control(control)
    {
        control->setFocusPolicy(Qt::StrongFocus);
        control->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || m_control->hasFocus())
            return false;
        event->ignore(); // the parent receives it
        return true;
    }

private:
    QWidget *m_control;
};

} // namespace

void guardFromWheel(QWidget *control)
{
    new WheelGuard(control);
}

} // namespace host
