// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/value_transformer.h"

#include <QHash>

namespace platform {

namespace {

using Transformers = QHash<QString, std::shared_ptr<const ValueTransformer>>;
Q_GLOBAL_STATIC(Transformers, transformers)

} // namespace

ValueTransformer::~ValueTransformer() = default;

QVariant ValueTransformer::reverseTransformedValue(const QVariant &) const
{
    return {};
}

void ValueTransformer::setValueTransformerForName(std::shared_ptr<const ValueTransformer> transformer,
                                                  const QString &name)
{
    (*transformers)[name] = std::move(transformer);
}

std::shared_ptr<const ValueTransformer> ValueTransformer::valueTransformerForName(const QString &name)
{
    return transformers->value(name);
}

} // namespace platform
