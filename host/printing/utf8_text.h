// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace host {

// How many of these bytes of UTF-8 remain when a character that was cut off at their end is left out. All of
// them where none was, and where the bytes are not UTF-8 in the first place.
qsizetype wholeCharacters(QByteArrayView utf8);

// The longest beginning of a text that takes at most so many bytes of UTF-8.
QByteArray utf8Beginning(const QString &text, qsizetype mostBytes);

} // namespace host
