// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <chrono>
#include <functional>

namespace host {

// Writing of the user's files for later sessions, such as the printer that was used last. These files may be
// slow, for example on a network file system, and no result waits for them.

// Runs `write` on a worker thread, after earlier calls. It must own its data and must not throw.
void writeLater(std::function<void()> write);
// Records that this printer was used, and runs `settings`, unless it is empty, to store further settings.
void rememberUseLater(const QString &printer, const std::function<void()> &settings);
// For the end of the program: returns when everything is written, or after `limit`.
void finishWrites(std::chrono::milliseconds limit);

} // namespace host
