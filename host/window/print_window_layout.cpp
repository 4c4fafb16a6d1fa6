// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// How the window's parts are laid out, and how they share what room there is.

#include "host/window/access_keys.h"
#include "host/window/dialog_button.h"
#include "host/window/dialog_waiter.h"
#include "host/window/explanations.h"
#include "host/window/finder.h"
#include "host/window/guide_buttons.h"
#include "host/window/help_desk.h"
#include "host/window/message_bar.h"
#include "host/window/page_book.h"
#include "host/window/page_list.h"
#include "host/window/print_window.h"
#include "host/window/printer_picker.h"
#include "host/window/result_page.h"
#include "host/window/separator.h"
#include "host/window/settings_control.h"
#include "host/window/tab_order.h"
#include "host/window/text_direction.h"
#include "host/window/unavailable_page.h"
#include "host/window/wait_sign.h"
#include "host/window/waiting_page.h"

#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

namespace host {

namespace {

constexpr int textShare = 6;   // of the window's height, for the texts of the message bar
constexpr int roomyLines = 24; // that the window is high; a lower one saves space
constexpr int mostLines = 58;  // that it grows to for the sake of a page
constexpr int spareLines = 4;  // that it leaves of the screen then

// What a window's screen has free, less the frame around the window.
QSize freeRoom(const QWidget *window)
{
    const QSize room = window->screen()->availableSize();
    const QMargins frame = window->windowHandle() ? window->windowHandle()->frameMargins() : QMargins();
    return room.shrunkBy(frame);
}

} // namespace

void PrintWindow::build()
{
    m_picker->addBeside(m_settings->button());
    m_print->setDefault(true);
    m_footer = new QHBoxLayout;
    m_footer->setSpacing(10);
    m_footer->addWidget(m_waitSign, 1);
    m_footer->addWidget(m_cancel);
    m_footer->addWidget(m_print);
    // Under the pages, where it moves nothing that the user is about to press.
    m_messages = new QHBoxLayout;
    m_messages->addWidget(m_bar);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_picker);
    column->addWidget(new Separator(Qt::Horizontal, this));
    for (QWidget *part : std::initializer_list<QWidget *>{m_book, m_unavailable, m_waiting, m_result})
        column->addWidget(part, 1);
    column->addWidget(new Separator(Qt::Horizontal, this));
    column->addLayout(m_messages);
    column->addLayout(m_footer);
    setCompact(false);
}

// What nobody needs before the window can be seen: ways to help, and what its parts say of themselves.
void PrintWindow::showGuide()
{
    if (m_guide)
        return;
    m_guide = new GuideButtons(this);
    connect(m_guide, &GuideButtons::findWanted, m_finder, &Finder::open);
    connect(m_guide, &GuideButtons::helpWanted, m_help, &HelpDesk::toggle);
    // Its place is then taken by what is waited for.
    connect(m_waiter.get(), &DialogWaiter::waitingNoticed, m_guide, &QWidget::hide);
    m_footer->insertWidget(0, m_guide);
    m_guide->setVisible(m_state == State::Choosing && m_busyDepth == 0 && !isSaving());
    for (const auto &[part, setting] : std::initializer_list<std::pair<QWidget *, QString>>{
             {m_picker, QStringLiteral("printer")},
             {m_settings->button(), QStringLiteral("presets")},
             {m_book->list(), QStringLiteral("pages")},
             {m_cancel, QStringLiteral("cancel")}})
        part->setWhatsThis(explanationOf(setting));
    if (!m_task.settingsOnly)
        m_print->setWhatsThis(explanationOf(QStringLiteral("print")));
    arrange();
}

void PrintWindow::arrange()
{
    QList<QWidget *> parts{m_book->list(), m_book->pages(), m_unavailable, m_waiting, m_result, m_bar};
    if (m_guide)
        parts.append(m_guide);
    chainTabOrder(QList<QWidget *>{m_picker} + m_finder->parts() + parts +
                  QList<QWidget *>{m_waitSign, m_cancel, m_print});
    m_keys->assign();
    keepLabelsAligned(this);
    setCompact(height() < roomyLines * fontMetrics().height());
    fit();
}

void PrintWindow::setRoom(const QSize &room)
{
    m_room = room;
    fit();
}

// Wide and high enough for the page, and never larger than the screen. A page that is long scrolls, as does
// what would only fit a window with no room around it: where the frame and the desktop's bars are is not
// known for certain.
void PrintWindow::fit()
{
    const QSize room = m_room.isValid() ? m_room : freeRoom(this);
    const int line = fontMetrics().height();
    const bool isOurs = !isVisible() || height() == m_ownHeight;
    QSize wanted;
    if (!m_book->isHidden()) {
        const int others = m_picker->sizeHint().height() + m_footer->sizeHint().height() + 2;
        const int high = m_book->wantedHeight() + others;
        const bool grows = isOurs && high <= mostLines * line;
        wanted = {m_book->wantedWidth(), grows ? qMin(high, room.height() - spareLines * line) : 0};
    }
    setMinimumSize(layout()->minimumSize().boundedTo(room));
    resize(size().expandedTo(wanted).boundedTo(room));
    if (isOurs)
        m_ownHeight = height();
}

void PrintWindow::showEvent(QShowEvent *event)
{
    fit();
    QDialog::showEvent(event);
    if (!focusWidget())
        m_book->list()->setFocus();
}

void PrintWindow::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    m_bar->setTextLimit(height() / textShare);
    setCompact(height() < roomyLines * fontMetrics().height());
}

void PrintWindow::setCompact(bool compact)
{
    m_picker->setCompact(compact);
    m_footer->setContentsMargins(20, compact ? 6 : 12, 20, compact ? 8 : 14);
    m_messages->setContentsMargins(16, m_bar->isShowing() ? (compact ? 4 : 10) : 0, 16, 0);
}

} // namespace host
