// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QByteArray;
class QDBusConnection;

namespace host {

// Queries the Settings portal for the desktop's high-contrast setting: "high-contrast", "high-contrast-dark"
// if the desktop also prefers dark colors, and empty if it is not set or the portal does not respond within
// three seconds.
QByteArray desktopContrastScheme(const QDBusConnection &bus);

} // namespace host
