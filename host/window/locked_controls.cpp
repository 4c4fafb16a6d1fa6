// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/locked_controls.h"

#include "host/window/foreign_text.h"

#include <QEvent>
#include <QWidget>

namespace host {

LockedControls::LockedControls(const QList<QWidget *> &controls, const QString &reason, QObject *parent)
    : QObject(parent)
{
    for (QWidget *control : controls) {
        const QString own = control->toolTip();
        control->setToolTip(tooltipOf(own.isEmpty() ? reason : reason + QLatin1Char('\n') + own));
        control->setEnabled(false);
        control->installEventFilter(this);
    }
}

bool LockedControls::eventFilter(QObject *watched, QEvent *event)
{
    auto *control = qobject_cast<QWidget *>(watched);
    if (control && event->type() == QEvent::EnabledChange && !control->testAttribute(Qt::WA_ForceDisabled))
        control->setEnabled(false);
    return false;
}

} // namespace host
