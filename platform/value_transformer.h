// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QMetaType>
#include <QString>
#include <QVariant>

#include <memory>

namespace platform {

// Converts between the value of a key and the value of a control. Stateless; shared between bindings.
class KELMAR_PLATFORM_EXPORT ValueTransformer
{
public:
    virtual ~ValueTransformer();

    // The type of the result of transformedValue().
    virtual QMetaType transformedValueClass() const = 0;
    virtual bool allowsReverseTransformation() const { return false; }
    // From key to control. A null (invalid) value is converted like any other.
    virtual QVariant transformedValue(const QVariant &value) const = 0;
    // From control to key. Called only if allowsReverseTransformation() is true. The default implementation
    // returns null.
    virtual QVariant reverseTransformedValue(const QVariant &value) const;

    // The process-wide registry of named transformers. A later registration of the same name replaces an
    // earlier one.
    static void setValueTransformerForName(std::shared_ptr<const ValueTransformer> transformer,
                                           const QString &name);
    // Null if no transformer has that name.
    static std::shared_ptr<const ValueTransformer> valueTransformerForName(const QString &name);
};

} // namespace platform
