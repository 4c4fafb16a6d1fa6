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

// The help features of the dialog: search, help pages, their shortcuts, and their buttons in the footer. A
// child of the window that contains the book.
class Guide : public QObject
{
    Q_OBJECT
public:
    explicit Guide(PageBook *book);

    Finder *finder() const { return m_finder; }
    // Creates what can wait until after the first paint: the buttons, and the descriptions of parts of the
    // window, by the names of their explanations. The window places the buttons.
    QWidget *addButtons(const QList<std::pair<QWidget *, QString>> &explained);
    // Shows a widget after the buttons and takes ownership of it. Call after addButtons().
    void addNote(QWidget *note);
    // Shows the buttons while settings can be changed.
    void setActive(bool active);
    // Hides the buttons while another widget needs their place.
    void setButtonsHidden(bool away);

Q_SIGNALS:
    // Different widgets are shown.
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
