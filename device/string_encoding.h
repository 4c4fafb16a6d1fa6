// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// The print system's identifiers of text encodings.
enum StringEncoding : quint32 {
    NSASCIIStringEncoding = 1,
    NSJapaneseEUCStringEncoding = 3,
    NSISOLatin1StringEncoding = 5,
    NSShiftJISStringEncoding = 8,
    NSISOLatin2StringEncoding = 9,
    NSWindowsCP1251StringEncoding = 11,
    NSWindowsCP1252StringEncoding = 12,
    NSWindowsCP1254StringEncoding = 14,
    NSWindowsCP1250StringEncoding = 15,
    NSISO2022JPStringEncoding = 21,
};

// The encoding of an IANA character-set number (MIBenum). ASCII for unknown numbers and for UTF-8.
quint32 stringEncodingForCharacterSet(qint64 mibEnum);
// The converter name for iconv(3); null for unlisted numbers.
const char *iconvNameOfStringEncoding(quint32 encoding);
// Null if the bytes are not valid in the encoding, or the system cannot convert from it. The text of no bytes
// is empty, not null.
QString decodedString(QByteArrayView bytes, quint32 encoding);
