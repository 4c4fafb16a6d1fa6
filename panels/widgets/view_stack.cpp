// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/view_stack.h"

#include "platform/layout_loader.h"

#include <QEvent>

namespace {

const bool registered = [] {
    platform::registerLayoutWidget<QVViewStack_M880>(QStringLiteral("QVViewStack_M880"));
    return true;
}();

} // namespace

QVViewStack_M880::QVViewStack_M880(QWidget *parent) : QWidget(parent) {}

QList<QWidget *> QVViewStack_M880::views() const
{
    return findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

QSize QVViewStack_M880::sizeHint() const
{
    QSize largest = minimumSizeHint();
    for (const QWidget *view : views())
        largest = largest.expandedTo(view->sizeHint());
    return largest;
}

QSize QVViewStack_M880::minimumSizeHint() const
{
    QSize largest;
    for (const QWidget *view : views())
        largest = largest.expandedTo(view->minimumSizeHint()).expandedTo(view->minimumSize());
    return largest;
}

void QVViewStack_M880::fillWithViews()
{
    for (QWidget *view : views())
        view->resize(size());
}

void QVViewStack_M880::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fillWithViews();
}

// A view that needs more or less room than before, in another language or with another text, changes the
// panel's.
bool QVViewStack_M880::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QWidget::event(event);
}
