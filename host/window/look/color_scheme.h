// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

extern const QString highContrast;     // high-contrast
extern const QString highContrastDark; // high-contrast-dark

// Replaces the desktop's style and colors in the whole program: "light", "dark", or one of the high-contrast
// schemes, whose text and outlines are black on white or white on black. Any other name has no effect. May be
// called at any time.
void applyColorScheme(const QString &name);

} // namespace host
