// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/announced.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QScrollArea>

namespace host {

namespace {

const char *const announcedProperty = "kelmarAnnounced";

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    // Qt's own implementation for scroll areas crashes when it is queried for a child that does not exist,
    // and a screen reader may query a scroll bar that was just removed.
    if (qobject_cast<QScrollArea *>(widget))
        return new QAccessibleWidget(widget, QAccessible::Pane);
    return widget && widget->property(announcedProperty).isValid()
               ? new QAccessibleWidget(widget, QAccessible::Notification)
               : nullptr;
}

} // namespace

void makeAnnounced(QWidget *widget)
{
    static const bool installed = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
    Q_UNUSED(installed)
    widget->setProperty(announcedProperty, true);
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
