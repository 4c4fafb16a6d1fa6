// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panels/widgets/view_stack.h"

#include "platform/layout_loader.h"

#include <QResizeEvent>

namespace {

const bool viewStackIsRegistered = [] {
    platform::registerLayoutWidget<QVViewStack_M880>(QStringLiteral("QVViewStack_M880"));
    return true;
}();

} // namespace

QVViewStack_M880::QVViewStack_M880(QWidget *parent) : QWidget(parent) {}

QList<QWidget *> QVViewStack_M880::views() const
{
    return findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

// The height of a view with wrapped text depends on its width. Its size hints assume a narrow view, which is
// higher than necessary, so the height is computed for the width of the stack.
int QVViewStack_M880::heightFor(const QWidget &view, const QSize &hint) const
{
    return view.hasHeightForWidth() ? view.heightForWidth(qMax(width(), hint.width())) : hint.height();
}

QSize QVViewStack_M880::sizeHint() const
{
    QSize largest = minimumSizeHint();
    for (const QWidget *view : views()) {
        const QSize hint = view->sizeHint();
        largest = largest.expandedTo({hint.width(), heightFor(*view, hint)});
    }
    return largest;
}

QSize QVViewStack_M880::minimumSizeHint() const
{
    QSize largest;
    for (const QWidget *view : views()) {
        const QSize hint = view->minimumSizeHint();
        largest = largest.expandedTo({hint.width(), heightFor(*view, hint)}).expandedTo(view->minimumSize());
    }
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
    if (event->size().width() != event->oldSize().width())
        updateGeometry(); // the height of a view depends on its width
}

// When a view needs a different size, for example after a change of language or text, so does the panel.
bool QVViewStack_M880::event(QEvent *event)
{
    if (event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QWidget::event(event);
}
