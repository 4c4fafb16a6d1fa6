// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QStringView>

#include <optional>

namespace platform {

// A decimal digit of any script.
struct DecimalDigit
{
    int value;        // 0 to 9
    qsizetype length; // UTF-16 units
};

// The digit at a position of a text; null if there is none, or beyond the end.
KELMAR_PLATFORM_EXPORT std::optional<DecimalDigit> decimalDigitAt(QStringView text, qsizetype at);

// The decimal number at the beginning of a text.
struct LeadingInteger
{
    qint32 value;     // clamped to 32 bits
    qsizetype length; // UTF-16 units up to the last digit, including leading white space
};

// Parses optional white space, an optional sign, and decimal digits of any script up to the first other
// character. Null if there is no digit.
KELMAR_PLATFORM_EXPORT std::optional<LeadingInteger> leadingInteger(QStringView text);

} // namespace platform
