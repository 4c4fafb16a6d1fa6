// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// Gives the whole program light or dark colours, in Qt's own style, in place of the desktop's. Call it before
// the first window; any name but "light" and "dark" changes nothing.
void applyColorScheme(const QString &name);

} // namespace host
