// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLayout>
#include <QWidget>

namespace host {

// The left part of the footer: a button that searches for a setting and one that opens the page's help, each
// with its key in the tool tip, and a note behind them. A click leaves the focus where it is.
class GuideButtons : public QWidget
{
    Q_OBJECT
public:
    explicit GuideButtons(QWidget *parent);
    // Shows a widget behind the buttons and owns it.
    void addNote(QWidget *note) { layout()->addWidget(note); }

Q_SIGNALS:
    void findWanted();
    void helpWanted();
};

} // namespace host
