// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace host {

// The number of bytes of UTF-8 without an incomplete character at the end. All bytes if there is none, or if
// they are not UTF-8.
qsizetype wholeCharacters(QByteArrayView utf8);

// The longest prefix of a text that fits into this number of bytes of UTF-8.
QByteArray utf8Beginning(const QString &text, qsizetype mostBytes);

} // namespace host
