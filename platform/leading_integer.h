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

// The digit at a place of a text; null where there is none, and behind its end.
KELMAR_PLATFORM_EXPORT std::optional<DecimalDigit> decimalDigitAt(QStringView text, qsizetype at);

// The decimal number a text starts with.
struct LeadingInteger
{
    qint32 value;     // kept within 32 bits: a larger number counts as the largest
    qsizetype length; // UTF-16 units up to its last digit, white space before it included
};

// Skips leading white space, takes an optional sign and reads decimal digits of any script up to the first
// character that is none. Null when there is no digit.
KELMAR_PLATFORM_EXPORT std::optional<LeadingInteger> leadingInteger(QStringView text);

} // namespace platform
