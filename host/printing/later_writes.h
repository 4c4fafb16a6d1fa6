// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <chrono>
#include <functional>

namespace host {

// What is kept for the next time in files of the user's, such as the printer that was used last. They may be
// as slow as a home in a network, and no result waits for them.

// Runs `write` on a worker thread, after earlier ones. It owns what it touches and must not throw.
void writeLater(std::function<void()> write);
// Writes that this printer has been used, and whatever else of its settings is kept then; none when empty.
void rememberUseLater(const QString &printer, const std::function<void()> &settings);
// For the end of the program: returns when all of it is written, or after `limit`.
void finishWrites(std::chrono::milliseconds limit);

} // namespace host
