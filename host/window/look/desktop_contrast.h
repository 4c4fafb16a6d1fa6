// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QObject;

namespace host {

// The scheme of applyColorScheme() that the desktop's high-contrast setting asks for.

// As GTK programs find it: the theme named by GTK_THEME or else by a settings.ini of the user. Null when that
// is no high-contrast theme. Reads two small files.
QString contrastSchemeOfTheme();

// Asks the desktop portal on a worker thread, through the service program, and applies the scheme when the
// answer comes. Does nothing without a session bus. `receiver` ends it when it is destroyed.
void followDesktopContrast(QObject *receiver);

} // namespace host
