// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLayout>
#include <QWidget>

namespace host {

// The left part of the footer: a button that opens the search and one that opens the page's help, each with
// its shortcut in the tooltip, and a note after them. A click does not move the focus.
class GuideButtons : public QWidget
{
    Q_OBJECT
public:
    explicit GuideButtons(QWidget *parent);
    // Shows a widget after the buttons and takes ownership of it.
    void addNote(QWidget *note) { layout()->addWidget(note); }

Q_SIGNALS:
    void findWanted();
    void helpWanted();
};

} // namespace host
