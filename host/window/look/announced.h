// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QWidget>

namespace host {

// Makes screen readers announce a widget when it appears: it gets the role of a notification, which is
// announced without having the focus. Call when the widget is created.
void makeAnnounced(QWidget *widget);

// Makes a widget one image for screen readers, whatever it is made of. Call when the widget is created.
void makeImage(QWidget *widget);

// Sets the accessible name of a widget that is announced, and has it announced: at once if it is visible,
// else when it appears.
void announce(QWidget *widget, const QString &text);

} // namespace host
