// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/value_transformer.h"

// "True", "enabled", "yes" in any case, and non-zero numbers, to a boolean; null is true. Back to "True" or
// "False".
class QVBooleanTransformer_M880 : public platform::ValueTransformer
{
public:
    QMetaType transformedValueClass() const override;
    bool allowsReverseTransformation() const override { return true; }
    QVariant transformedValue(const QVariant &value) const override;
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

// The leading 32-bit integer of a text, 0 where there is none. Back to the number's text; null stays null.
class QVNumberTransformer_M880 : public platform::ValueTransformer
{
public:
    QMetaType transformedValueClass() const override;
    bool allowsReverseTransformation() const override { return true; }
    QVariant transformedValue(const QVariant &value) const override;
    QVariant reverseTransformedValue(const QVariant &value) const override;
};

// A number's truth; of a string the first character only: t, y or a digit but 0 is true. Anything else, null
// included, is false. Deliberately another rule than the boolean transformer's.
bool QVBooleanValue(const QVariant &value);

// A number cut to an integer, or the integer a text starts with; 0 for anything else.
qint32 integerValue(const QVariant &value);

// A number, or the floating-point number that a text starts with ("3dpi" is 3), read as in the C locale; 0
// for anything else.
double floatingPointValue(const QVariant &value);
