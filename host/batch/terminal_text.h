// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace host {

// The one way for a line to the terminal, since lines hold texts of printers, PPDs and servers: as UTF-8,
// with everything that would move the cursor, change colours, break the line or turn the direction of writing
// shown as "\x1b" or "\u202e" instead of being obeyed.
QByteArray terminalLine(const QString &line);
// JSON, in which the same characters may still stand as they are, with them escaped as JSON has it.
QByteArray terminalJson(const QByteArray &json);

} // namespace host
