// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// Shows a desktop notification, where the desktop has them. Returns
// at once; what speaks with the desktop is a process of its own. Texts are plain text.
void notifyDesktop(const QString &title, const QString &text, bool isUrgent);
// The same for a program without a window: waits up to ten seconds. False when the desktop shows nothing.
bool notifyDesktopNow(const QString &title, const QString &text, bool isUrgent);

} // namespace host
