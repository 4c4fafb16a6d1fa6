// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

namespace host {

// Makes a line safe for the terminal; used for all output, since lines contain texts of printers, PPDs and
// servers. The result is UTF-8. Characters that would move the cursor, change colors, break the line or
// change the writing direction are shown as "\x1b" or "\u202e".
QByteArray terminalLine(const QString &line);
// Escapes the same characters in JSON, in JSON's notation.
QByteArray terminalJson(const QByteArray &json);

} // namespace host
