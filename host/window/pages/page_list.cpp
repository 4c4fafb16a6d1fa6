// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/page_list.h"

#include "host/window/look/contrast.h"

#include <QEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace host {

namespace {

constexpr int sideMargin = 10; // pixels around the list's items
constexpr int textMargin = 12;
constexpr int markRoom = 10; // for the mark of a change, after the longest name
constexpr int narrowest = 170;
constexpr int changedRole = Qt::UserRole + 1;

// Draws rows with spacing, the current one on a rounded background.
class PageDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const QFontMetrics metrics(option.font);
        return {metrics.horizontalAdvance(index.data().toString()) + 2 * textMargin + markRoom,
                metrics.height() + 16};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const bool selected = option.state & QStyle::State_Selected;
        const QRectF ground = QRectF(option.rect).adjusted(0.5, 1.5, -0.5, -1.5);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        if (selected) {
            painter->setBrush(option.palette.brush(QPalette::Active, QPalette::Highlight));
            painter->drawRoundedRect(ground, 6, 6);
        } else if (option.state & QStyle::State_MouseOver) {
            QColor hover = option.palette.color(QPalette::Text);
            hover.setAlphaF(0.07F);
            painter->setBrush(hover);
            painter->drawRoundedRect(ground, 6, 6);
        }
        const QColor ink =
            selected ? highlightInk(option.palette) : option.palette.color(QPalette::Active, QPalette::Text);
        painter->setPen(ink);
        if (selected && (option.state & QStyle::State_HasFocus)) {
            painter->setBrush(Qt::NoBrush);
            painter->setPen(QPen(ink, 2));
            painter->drawRoundedRect(ground.adjusted(3, 3, -3, -3), 4, 4);
        }
        QRect place = option.rect.adjusted(textMargin, 0, -textMargin, 0);
        if (index.data(changedRole).toBool()) // reserves the place of the mark in a narrow list
            place.setWidth(place.width() - markRoom);
        place = QStyle::visualRect(option.direction, option.rect, place);
        painter->drawText(
            place, Qt::AlignVCenter | Qt::AlignLeading,
            QFontMetrics(option.font).elidedText(index.data().toString(), Qt::ElideMiddle, place.width()));
        if (index.data(changedRole).toBool())
            paintChanged(painter, option.rect, ink, option.direction);
        painter->restore();
    }

private:
    // A small diamond in the margin after the name.
    static void paintChanged(QPainter *painter, const QRect &row, const QColor &ink,
                             Qt::LayoutDirection direction)
    {
        const int x =
            direction == Qt::RightToLeft ? row.left() + textMargin - 2 : row.right() - textMargin + 2;
        const QPointF at(x, row.center().y() + 0.5);
        painter->setPen(Qt::NoPen);
        painter->setBrush(ink);
        painter->drawPolygon(
            QPolygonF({at + QPointF(0, -4), at + QPointF(4, 0), at + QPointF(0, 4), at + QPointF(-4, 0)}));
    }
};

} // namespace

PageList::PageList(QWidget *parent) : QuietList(parent)
{
    setFrameShape(QFrame::NoFrame);
    setItemDelegate(new PageDelegate(this));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setViewportMargins(sideMargin, sideMargin, sideMargin, sideMargin);
    setMouseTracking(true);
    setUniformItemSizes(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setAccessibleName(tr("Pages of the dialog"));
    // The rows depend on the width. It changes only with the names, or with the size of the window, and Qt
    // then paints the whole window.
    setAttribute(Qt::WA_StaticContents);
    viewport()->setAttribute(Qt::WA_StaticContents);
    takePalette();
}

void PageList::addPage(const QString &title)
{
    addItem(title);
    item(count() - 1)->setToolTip(title);
    m_width = 0;
    updateGeometry();
}

void PageList::setChanged(int row, bool changed)
{
    QListWidgetItem *page = item(row);
    if (!page || page->data(changedRole).toBool() == changed)
        return;
    page->setData(changedRole, changed);
    page->setData(Qt::AccessibleDescriptionRole, changed ? tr("has changed settings") : QString());
    page->setToolTip(changed ? tr("%1: has changed settings", "a page").arg(page->text()) : page->text());
}

QSize PageList::sizeHint() const
{
    if (m_width == 0)
        m_width = qMax(narrowest, sizeHintForColumn(0) + 2 * sideMargin + 4);
    return {m_width, 240};
}

void PageList::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    m_width = 0;
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::ApplicationPaletteChange)
        takePalette();
}

// Gives the list and the margin around its rows the same color.
void PageList::takePalette()
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

} // namespace host
