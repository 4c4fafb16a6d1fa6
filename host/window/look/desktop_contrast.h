// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

class QObject;

namespace host {

// The scheme for applyColorScheme() that corresponds to the desktop's high-contrast setting.

// Determined like in GTK programs: from the theme in GTK_THEME or else in a settings.ini of the user. Null if
// it is not a high-contrast theme. Reads two small files.
QString contrastSchemeOfTheme();

// Queries the desktop portal on a worker thread, through the service program, and applies the scheme when the
// response arrives. Does nothing without a session bus. Stops when `receiver` is destroyed.
void followDesktopContrast(QObject *receiver);

} // namespace host
