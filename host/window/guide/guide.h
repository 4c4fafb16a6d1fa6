// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>

#include <utility>

class QWidget;

namespace host {

class Finder;
class GuideButtons;
class HelpDesk;
class PageBook;

// The ways to help of the dialog: its search, its help, their keys, and their buttons in the footer. A child
// of the window that holds the book.
class Guide : public QObject
{
    Q_OBJECT
public:
    explicit Guide(PageBook *book);

    Finder *finder() const { return m_finder; }
    // Creates what can wait until after the first paint: the buttons, and what parts of the window say of
    // themselves, by the name of their explanation. The window finds a place for the buttons.
    QWidget *addButtons(const QList<std::pair<QWidget *, QString>> &explained);
    // Shows a note behind the buttons, with them, and owns it. After addButtons().
    void addNote(QWidget *note);
    // Shows the buttons while settings can be made.
    void setActive(bool active);
    // Hides the buttons while something else needs their place.
    void makeWay(bool away);

Q_SIGNALS:
    // Other widgets are shown than before.
    void partsChanged();

private:
    void showButtons();

    Finder *m_finder;
    HelpDesk *m_help;
    GuideButtons *m_buttons = nullptr; // null before addButtons()
    bool m_isActive = false;
    bool m_isAway = false;
};

} // namespace host
