// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/announced.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QScrollArea>

namespace host {

namespace {

const char *const roleProperty = "kelmarRole";

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    // Qt's own implementation for scroll areas crashes when it is queried for a child that does not exist,
    // and a screen reader may query a scroll bar that was just removed.
    if (qobject_cast<QScrollArea *>(widget))
        return new QAccessibleWidget(widget, QAccessible::Pane);
    const QVariant role = widget ? widget->property(roleProperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()))
                          : nullptr;
}

void setRole(QWidget *widget, QAccessible::Role role)
{
    static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    Q_UNUSED(installed)
    widget->setProperty(roleProperty, static_cast<int>(role));
}

} // namespace

void makeAnnounced(QWidget *widget)
{
    setRole(widget, QAccessible::Notification);
}

void makeImage(QWidget *widget)
{
    setRole(widget, QAccessible::Graphic);
}

void announce(QWidget *widget, const QString &text)
{
    widget->setAccessibleName(text);
    if (!widget->isVisible()) // it is announced when it appears
        return;
    QAccessibleEvent shown(widget, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
    QAccessibleEvent alert(widget, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace host
