// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/value_transformer.h"

// Converts "True", "enabled", "yes" in any case, and non-zero numbers, to a boolean; null is true. Reverse:
// "True" or "False".
class QVBooleanTransformer_M880 : public platform::ValueTransformer
{
public:
    QMetaType transformedValueClass() const override;
    bool allowsReverseTransformation() const override { return true; }
    QVariant transformedValue(const QVariant &value) const override;
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

// Converts a text to its leading 32-bit integer, 0 if there is none. Reverse: the number as text; null stays
// null.
class QVNumberTransformer_M880 : public platform::ValueTransformer
{
public:
    QMetaType transformedValueClass() const override;
    bool allowsReverseTransformation() const override { return true; }
    QVariant transformedValue(const QVariant &value) const override;
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

// The boolean value of a number, or of the first character of a string: t, y or a digit other than 0 is true.
// Anything else, including null, is false. This intentionally differs from the boolean transformer.
bool QVBooleanValue(const QVariant &value);

// A number truncated to an integer, or the integer at the beginning of a text; 0 for anything else.
qint32 integerValue(const QVariant &value);

// A number, or the floating-point number at the beginning of a text ("3dpi" is 3), in the C locale; 0 for
// anything else.
double floatingPointValue(const QVariant &value);
