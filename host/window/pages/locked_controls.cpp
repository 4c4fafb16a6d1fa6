// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/locked_controls.h"

#include "host/window/look/foreign_text.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QWidget>

namespace host {

LockedControls::LockedControls(const QList<QWidget *> &controls, const QString &reason, QObject *parent)
    : QObject(parent), m_reason(reason)
{
    for (QWidget *control : controls) {
        addReason(control);
        control->setEnabled(false);
        control->installEventFilter(this);
    }
}

void LockedControls::addReason(QWidget *control)
{
    const QScopedValueRollback setting(m_isSettingToolTip, true);
    const QString own = control->toolTip();
    control->setToolTip(tooltipOf(own.isEmpty() ? m_reason : m_reason + QLatin1Char('\n') + own));
}

bool LockedControls::eventFilter(QObject *watched, QEvent *event)
{
    auto *control = qobject_cast<QWidget *>(watched);
    if (control && event->type() == QEvent::EnabledChange && !control->testAttribute(Qt::WA_ForceDisabled))
        control->setEnabled(false);
    if (control && event->type() == QEvent::ToolTipChange && !m_isSettingToolTip)
        addReason(control);
    return false;
}

} // namespace host
