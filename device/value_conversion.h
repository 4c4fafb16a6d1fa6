// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QVariant>

// Conversions of a value that may be a number, a boolean or a text.

// A number as it is, a boolean as 1 or 0, of a text the decimal digits it begins with after optional white
// space and a sign. 0 for anything else; clamped to the 64-bit range.
qint64 wholeNumber(const QVariant &value);
// True for a text that begins, after optional white space, with a digit from 1 to 9 or with y, Y, t or T.
// Numbers and booleans are read as the text they are written as.
bool booleanValue(const QVariant &value);
