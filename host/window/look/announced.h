// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

namespace host {

// Makes a widget one that screen readers read out when it appears: its role is that of a notification, which
// they announce without its having the focus. To be called when the widget is made.
void makeAnnounced(QWidget *widget);

// Gives such a widget what it says as its name, and has it read out: at once where it is shown already, else
// when it appears.
void announce(QWidget *widget, const QString &text);

} // namespace host
