// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

class QByteArray;
class QDBusConnection;

namespace host {

// Shows a desktop notification: `notice` is a JSON object with "title" and "text", both plain text, and
// "urgent". False if the desktop shows no notifications.
bool showDesktopNotification(const QDBusConnection &bus, const QByteArray &notice);

} // namespace host
