// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/window_layout.h"

#include "host/window/guide/finder.h"
#include "host/window/look/access_keys.h"
#include "host/window/look/separator.h"
#include "host/window/look/tab_order.h"
#include "host/window/look/text_direction.h"
#include "host/window/messages/message_bar.h"
#include "host/window/pages/page_book.h"
#include "host/window/pages/page_list.h"
#include "host/window/printers/printer_picker.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <QWindow>

namespace host {

namespace {

constexpr int textShare = 6;           // of the window's height, for the texts of the message bar
constexpr QSize initialSize(720, 600); // of the window if the screen has room
constexpr int initialLines = 34;       // minimum height in that case
constexpr int titleLines = 3;          // height of a title bar
constexpr int roomyLines = 24;         // window height; lower windows save space
constexpr int mostLines = 58;          // maximum height to which the window grows for a page
constexpr int spareLines = 4;          // of the screen that remain free then

// The space that a window may fill: `given`, or the available space of its screen without the frame around
// the window. Until the window is exposed, its frame may be unknown; then there is space for a title bar.
QSize freeRoom(const QWidget *window, const QSize &given)
{
    const QWindow *handle = window->windowHandle();
    const QMargins frame = handle ? handle->frameMargins() : QMargins();
    const QSize room = given.isValid() ? given : window->screen()->availableSize().shrunkBy(frame);
    const bool isFrameKnown = !frame.isNull() || (handle && handle->isExposed());
    return isFrameKnown ? room : room - QSize(0, titleLines * window->fontMetrics().height());
}

// The parts in the order in which they get access keys.
QList<QWidget *> inOrderOfKeys(const WindowLayout::Parts &parts)
{
    QList<QWidget *> order(parts.footer.crbegin(), parts.footer.crend());
    order.insert(1, parts.picker);
    return order + QList<QWidget *>{parts.book->pages()} + parts.otherPages;
}

} // namespace

WindowLayout::WindowLayout(QWidget *window, const Parts &parts)
    : QObject(window), m_window(window), m_parts(parts), m_keys(new AccessKeys(window, inOrderOfKeys(parts))),
      m_barKeys(new AccessKeys(window, {parts.bar}, m_keys)), m_footer(new QHBoxLayout),
      m_barRow(new QHBoxLayout)
{
    build();
}

void WindowLayout::build()
{
    for (QWidget *part : std::as_const(m_parts.footer))
        m_footer->addWidget(part, part == m_parts.footer.first() ? 1 : 0);
    // Below the pages, so that controls the user is about to press do not move.
    m_barRow->addWidget(m_parts.bar);

    auto *column = new QVBoxLayout(m_window);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_parts.picker);
    column->addWidget(new Separator(Qt::Horizontal, m_window));
    column->addWidget(m_parts.book, 1);
    for (QWidget *page : std::as_const(m_parts.otherPages))
        column->addWidget(page, 1);
    column->addWidget(new Separator(Qt::Horizontal, m_window));
    column->addLayout(m_barRow);
    column->addLayout(m_footer);
    setCompact(false);
    m_window->resize(initialSize.width(), initialHeight());
}

void WindowLayout::addGuide(QWidget *guide)
{
    m_guide = guide;
    m_keys->addPart(guide);
    m_footer->insertWidget(0, guide);
}

void WindowLayout::arrange()
{
    arrangeKeys();
    setCompact(m_window->height() < roomyLines * m_window->fontMetrics().height());
    fit();
}

void WindowLayout::arrangeBar()
{
    assignKeys(m_barKeys);
    fit();
}

void WindowLayout::arrangeKeys()
{
    assignKeys(m_keys);
}

void WindowLayout::assignKeys(AccessKeys *keys)
{
    QList<QWidget *> order = QList<QWidget *>{m_parts.picker} + m_parts.finder->parts();
    order.append({m_parts.book->list(), m_parts.book->stack(), m_parts.book->pages()}); // the preview last
    order += m_parts.otherPages;
    order.append(m_parts.bar);
    if (m_guide)
        order.append(m_guide);
    chainTabOrder(order + m_parts.footer);
    keys->assign();
    keepLabelsAligned(m_window);
}

void WindowLayout::setRoom(const QSize &room)
{
    m_room = room;
    fit();
}

// Long pages scroll, as do pages that would only just fit, since the size of the frame and of the desktop's
// bars is not exactly known.
void WindowLayout::fit()
{
    const QSize room = freeRoom(m_window, m_room);
    const bool isOurs = !m_window->isVisible() || m_window->height() == m_ownHeight;
    const QSize wanted = wantedSize(room, isOurs);
    m_window->setMinimumSize(m_window->layout()->minimumSize().boundedTo(room));
    m_window->resize(m_window->size().expandedTo(wanted).boundedTo(room));
    if (isOurs)
        m_ownHeight = m_window->height();
}

QSize WindowLayout::wantedSize(const QSize &room, bool mayGrow) const
{
    if (m_parts.book->isHidden())
        return {};
    const int line = m_window->fontMetrics().height();
    const int others = m_parts.picker->sizeHint().height() + m_footer->sizeHint().height() + 2;
    const QSize page = m_parts.book->wantedSize();
    const int high = page.height() + others;
    const int most = qMin(mostLines, room.height() / line - spareLines) * line;
    return {page.width(), mayGrow ? qMax(initialHeight(), qMin(high, most)) : 0};
}

int WindowLayout::initialHeight() const
{
    return qMax(initialSize.height(), initialLines * m_window->fontMetrics().height());
}

void WindowLayout::adapt()
{
    m_parts.bar->setTextLimit(m_window->height() / textShare);
    setCompact(m_window->height() < roomyLines * m_window->fontMetrics().height());
}

void WindowLayout::setCompact(bool compact)
{
    m_parts.picker->setCompact(compact);
    const int footerSide = compact ? 10 : 20; // a low window is often narrow, too
    m_footer->setContentsMargins(footerSide, compact ? 6 : 12, footerSide, compact ? 8 : 14);
    m_footer->setSpacing(compact ? 6 : 10);
    const int side = compact ? 10 : 16;
    m_barRow->setContentsMargins(side, 0, side, 0);
    m_parts.bar->setContentsMargins(0, compact ? 4 : 10, 0, 0); // takes no space while the bar is hidden
}

} // namespace host
