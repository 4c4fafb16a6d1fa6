// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QByteArray;
class QDBusConnection;

namespace host {

// Asks the Settings portal whether the desktop is set to high contrast: "high-contrast", "high-contrast-dark"
// where it prefers dark colors as well, and empty where it is not or nothing answers within three seconds.
QByteArray desktopContrastScheme(const QDBusConnection &bus);

} // namespace host
