// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QByteArray;
class QDBusConnection;

namespace host {

// Shows a notification on the desktop: `notice` is a JSON object with "title" and "text", both plain text,
// and "urgent". False when the desktop does not show any.
bool showDesktopNotification(const QDBusConnection &bus, const QByteArray &notice);

} // namespace host
