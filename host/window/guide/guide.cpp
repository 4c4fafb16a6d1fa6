// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/guide/guide.h"

#include "host/window/guide/finder.h"
#include "host/window/guide/guide_buttons.h"
#include "host/window/guide/help_desk.h"
#include "host/window/look/explanations.h"
#include "host/window/pages/page_book.h"

#include <QShortcut>

namespace host {

Guide::Guide(PageBook *book) : QObject(book->window()), m_finder(new Finder(book)), m_help(new HelpDesk(book))
{
    connect(m_finder, &Finder::partsChanged, this, &Guide::partsChanged);
    connect(m_help, &HelpDesk::shown, this, &Guide::partsChanged);
    connect(new QShortcut(QKeySequence::Find, book->window()), &QShortcut::activated, m_finder,
            &Finder::open);
    connect(new QShortcut(QKeySequence::HelpContents, book->window()), &QShortcut::activated, m_help,
            &HelpDesk::toggle);
}

QWidget *Guide::addButtons(const QList<std::pair<QWidget *, QString>> &explained)
{
    m_buttons = new GuideButtons(static_cast<QWidget *>(parent()));
    connect(m_buttons, &GuideButtons::findWanted, m_finder, &Finder::open);
    connect(m_buttons, &GuideButtons::helpWanted, m_help, &HelpDesk::toggle);
    showButtons();
    for (const auto &[part, setting] : explained)
        part->setWhatsThis(explanationOf(setting));
    return m_buttons;
}

void Guide::addNote(QWidget *note)
{
    m_buttons->addNote(note);
}

void Guide::setActive(bool active)
{
    m_isActive = active;
    showButtons();
}

void Guide::setButtonsHidden(bool away)
{
    m_isAway = away;
    showButtons();
}

void Guide::showButtons()
{
    if (m_buttons)
        m_buttons->setVisible(m_isActive && !m_isAway);
}

} // namespace host
