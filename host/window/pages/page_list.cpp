// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/page_list.h"

#include "host/window/look/contrast.h"
#include "host/window/look/focus_ring.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>
#include <QToolTip>
#include <QWheelEvent>

namespace host {

namespace {

constexpr int sideMargin = 10; // pixels around the rows
constexpr int textMargin = 12;
constexpr int markRoom = 10; // for the mark of a change, after the longest name
constexpr int spareWidth = 4;
constexpr int narrowest = 170; // the least preferred width
constexpr int leastWidth = 120;

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
    setUsesScrollButtons(false);
    setProperty(FocusRing::ownMarkProperty, true);
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
    m_width = 0;
    updateGeometry();
}

void PageList::clear()
{
    for (int row = count() - 1; row >= 0; --row) { // removing the current row makes another one current
        if (row != currentIndex())
            removeTab(row);
    }
    removeTab(currentIndex());
}

void PageList::setChanged(int row, bool changed)
{
    if (tabData(row).toBool() == changed)
        return;
    setTabData(row, changed);
    setTabToolTip(row, changed ? tr("has changed settings") : QString()); // its accessible description
    update(placeOf(row));
}

QSize PageList::sizeHint() const
{
    if (m_width == 0) {
        m_width = narrowest;
        for (int row = 0; row < count(); ++row)
            m_width = qMax(m_width, fontMetrics().horizontalAdvance(accessibleTabName(row)) + 2 * textMargin +
                                        markRoom + 2 * sideMargin + spareWidth);
    }
    return {m_width, minimumSizeHint().height()};
}

QSize PageList::minimumSizeHint() const
{
    int height = sideMargin;
    for (int row = 0; row < count(); ++row)
        height += tabSizeHint(row).height();
    return {leastWidth, height};
}

// The tool tip contains the name, which may be elided.
bool PageList::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTabBar::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const int row = tabAt(help->pos());
    const QString title = accessibleTabName(row);
    const bool isChanged = tabData(row).toBool();
    QToolTip::showText(help->globalPos(),
                       isChanged ? tr("%1: has changed settings", "a page").arg(title) : title, this);
    return true;
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

// Draws a row, the current one on a rounded background.
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

// The row whose name starts with the letters that are typed in quick succession; -1 if there is none. The
// same letter again selects the next row with this letter.
int PageList::rowNamed(const QString &typed)
{
    if (typed.isEmpty() || !typed.at(0).isPrint())
        return -1;
    if (!m_sinceTyped.isValid() || m_sinceTyped.hasExpired(QApplication::keyboardInputInterval()))
        m_typed.clear();
    m_sinceTyped.start();
    m_typed += typed;
    const bool isOneLetter = m_typed.count(m_typed.at(0), Qt::CaseInsensitive) == m_typed.size();
    const QString wanted = isOneLetter ? m_typed.left(1) : m_typed;
    for (int step = isOneLetter ? 1 : 0; step <= count(); ++step) {
        const int row = (currentIndex() + step) % count();
        if (accessibleTabName(row).startsWith(wanted, Qt::CaseInsensitive))
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
        if (!(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
            row = rowNamed(event->text());
    }
    if (row < 0)
        event->ignore();
    else
        setCurrentIndex(row);
}

// Scrolls instead of turning the pages.
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

// The background of a list.
void PageList::takePalette()
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

} // namespace host
