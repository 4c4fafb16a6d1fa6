// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// Shows a desktop notification if the desktop supports them. Returns at once; a separate process communicates
// with the desktop. Texts are plain text.
void notifyDesktop(const QString &title, const QString &text, bool isUrgent);
// The same for a program without a window: waits up to ten seconds. False if the desktop shows no
// notification.
bool notifyDesktopNow(const QString &title, const QString &text, bool isUrgent);

} // namespace host
