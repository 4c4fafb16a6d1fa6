// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QVariant>

namespace platform {

class KeyValueObject;

// The object for `value`, which was read from key `key` of `holder`, as part of a key path. Null for null and
// for an object in destruction. Raises Exception (undefined key) for values that have no keys.
KeyValueObject *objectOnPath(const KeyValueObject *holder, const QString &key, const QVariant &value);

} // namespace platform
