// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/tab_order.h"

#include <QHash>

#include <utility>

namespace host {

namespace {

// Whether the Tab key reaches the widget if it is visible and enabled.
bool isTabStop(const QWidget *widget)
{
    return (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
}

// The index of the first part that is the widget or contains it; the number of parts if there is none.
// `known` contains the results for widgets that contain others.
qsizetype firstPartWith(QWidget *widget, const QList<QWidget *> &parts, QHash<QWidget *, qsizetype> *known)
{
    if (!widget || widget->isWindow())
        return parts.size();
    QWidget *parent = widget->parentWidget();
    auto outer = known->constFind(parent);
    if (outer == known->cend())
        outer = known->insert(parent, firstPartWith(parent, parts, known));
    const qsizetype part = parts.indexOf(widget);
    return part < 0 ? *outer : qMin(*outer, part);
}

} // namespace

void chainTabOrder(const QList<QWidget *> &parts)
{
    if (parts.isEmpty())
        return;
    QHash<QWidget *, qsizetype> known;
    QList<QList<QWidget *>> stops(parts.size() + 1); // the last list is for widgets in no part
    QWidget *const start = parts.first()->window();
    for (QWidget *next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain()) {
        if (isTabStop(next))
            stops[firstPartWith(next, parts, &known)].append(next);
    }
    stops.removeLast();
    QList<QWidget *> chain;
    for (const QList<QWidget *> &ofPart : std::as_const(stops))
        chain += ofPart;
    for (qsizetype i = 1; i < chain.size(); ++i) {
        if (chain.at(i - 1)->nextInFocusChain() != chain.at(i))
            QWidget::setTabOrder(chain.at(i - 1), chain.at(i));
    }
}

} // namespace host
