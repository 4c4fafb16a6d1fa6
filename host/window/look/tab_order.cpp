// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/look/tab_order.h"

namespace host {

QList<QWidget *> tabStops(QWidget *part)
{
    QList<QWidget *> stops;
    QWidget *const start = part->window();
    for (QWidget *next = start->nextInFocusChain(); next != start; next = next->nextInFocusChain()) {
        const bool inside = next == part || part->isAncestorOf(next);
        if (inside && (next->focusPolicy() & Qt::TabFocus) && !next->focusProxy())
            stops.append(next);
    }
    return stops;
}

void chainTabOrder(const QList<QWidget *> &parts)
{
    QList<QWidget *> chain;
    for (QWidget *part : parts) {
        for (QWidget *stop : tabStops(part)) {
            if (!chain.contains(stop))
                chain.append(stop);
        }
    }
    for (qsizetype i = 1; i < chain.size(); ++i)
        QWidget::setTabOrder(chain.at(i - 1), chain.at(i));
}

} // namespace host
