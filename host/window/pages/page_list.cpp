// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/page_list.h"

#include "host/window/look/contrast.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>
#include <QWheelEvent>

namespace host {

namespace {

constexpr int sideMargin = 10; // pixels around the rows
constexpr int textMargin = 12;
constexpr int markRoom = 10; // for the mark of a change, after the longest name
constexpr int narrowest = 170;

// A small diamond in the margin after the name.
void paintChanged(QPainter *painter, const QRect &row, const QColor &ink, Qt::LayoutDirection direction)
{
    const int x = direction == Qt::RightToLeft ? row.left() + textMargin - 2 : row.right() - textMargin + 2;
    const QPointF at(x, row.center().y() + 0.5);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ink);
    painter->drawPolygon(
        QPolygonF({at + QPointF(0, -4), at + QPointF(4, 0), at + QPointF(0, 4), at + QPointF(-4, 0)}));
}

} // namespace

PageList::PageList(QWidget *parent) : QTabBar(parent)
{
    setShape(QTabBar::RoundedWest);
    setExpanding(false);
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setAccessibleName(tr("Pages of the dialog"));
    // The rows depend on the width. It changes only with the names, or with the size of the window, and Qt
    // then paints the whole window.
    setAttribute(Qt::WA_StaticContents);
    takePalette();
}

void PageList::addPage(const QString &title)
{
    const int row = addTab(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
    setAccessibleTabName(row, title);
    setTabToolTip(row, title);
    m_width = 0;
    updateGeometry();
}

void PageList::clear()
{
    while (count() > 0)
        removeTab(count() - 1);
}

void PageList::setChanged(int row, bool changed)
{
    if (tabData(row).toBool() == changed)
        return;
    setTabData(row, changed);
    const QString title = accessibleTabName(row);
    setTabToolTip(row, changed ? tr("%1: has changed settings", "a page").arg(title) : title);
    update(placeOf(row));
}

QSize PageList::sizeHint() const
{
    if (m_width == 0) {
        m_width = narrowest;
        for (int row = 0; row < count(); ++row)
            m_width = qMax(m_width, fontMetrics().horizontalAdvance(accessibleTabName(row)) + 2 * textMargin +
                                        markRoom + 2 * sideMargin + 4);
    }
    return {m_width, 240};
}

// The first row includes the margin above the rows.
QSize PageList::tabSizeHint(int row) const
{
    return {width(), fontMetrics().height() + 16 + (row == 0 ? sideMargin : 0)};
}

QRect PageList::placeOf(int row) const
{
    return tabRect(row).adjusted(sideMargin, row == 0 ? sideMargin : 0, -sideMargin, 0);
}

void PageList::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int row = 0; row < count(); ++row) {
        QStyleOptionTab option;
        initStyleOption(&option, row);
        option.rect = placeOf(row);
        paintRow(&painter, option, row);
    }
}

// Draws rows with spacing, the current one on a rounded background.
void PageList::paintRow(QPainter *painter, const QStyleOptionTab &option, int row) const
{
    const bool selected = option.state & QStyle::State_Selected;
    const QRectF ground = QRectF(option.rect).adjusted(0.5, 1.5, -0.5, -1.5);
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
    const bool isChanged = tabData(row).toBool();
    QRect place = option.rect.adjusted(textMargin, 0, -textMargin, 0);
    if (isChanged) // reserves the place of the mark in a narrow list
        place.setWidth(place.width() - markRoom);
    place = QStyle::visualRect(option.direction, option.rect, place);
    painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeading,
                      fontMetrics().elidedText(accessibleTabName(row), Qt::ElideMiddle, place.width()));
    if (isChanged)
        paintChanged(painter, option.rect, ink, option.direction);
}

// The next row whose name starts with a typed letter; -1 if there is none.
int PageList::rowStartingWith(const QString &text) const
{
    for (int step = 1; step <= count() && !text.isEmpty(); ++step) {
        const int row = (currentIndex() + step) % count();
        if (accessibleTabName(row).startsWith(text, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

void PageList::keyPressEvent(QKeyEvent *event)
{
    int row = -1;
    switch (event->key()) {
    case Qt::Key_Up:
        row = qMax(currentIndex() - 1, 0);
        break;
    case Qt::Key_Down:
        row = qMin(currentIndex() + 1, count() - 1);
        break;
    case Qt::Key_Home:
    case Qt::Key_PageUp:
        row = 0;
        break;
    case Qt::Key_End:
    case Qt::Key_PageDown:
        row = count() - 1;
        break;
    default:
        row = rowStartingWith(event->text());
    }
    if (row < 0)
        event->ignore();
    else
        setCurrentIndex(row);
}

// Rolling the wheel must not turn the pages.
void PageList::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void PageList::changeEvent(QEvent *event)
{
    QTabBar::changeEvent(event);
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
