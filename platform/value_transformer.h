// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QMetaType>
#include <QString>
#include <QVariant>

#include <memory>

namespace platform {

// Converts between the value a key holds and the value a control shows. Stateless; shared between bindings.
class KELMAR_PLATFORM_EXPORT ValueTransformer
{
public:
    virtual ~ValueTransformer();

    // Type of what transformedValue() gives.
    virtual QMetaType transformedValueClass() const = 0;
    virtual bool allowsReverseTransformation() const { return false; }
    // Key side to control side. A null (invalid) value is a value like any other.
    virtual QVariant transformedValue(const QVariant &value) const = 0;
    // Control side to key side; only called where allowsReverseTransformation() is true. The default gives
    // null.
    virtual QVariant reverseTransformedValue(const QVariant &value) const;

    // The process-wide register of named transformers. A later one of the same name replaces the earlier.
    static void setValueTransformerForName(std::shared_ptr<const ValueTransformer> transformer,
                                           const QString &name);
    // Null when no transformer has that name.
    static std::shared_ptr<const ValueTransformer> valueTransformerForName(const QString &name);
};

} // namespace platform
