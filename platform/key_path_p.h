// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QVariant>

namespace platform {

class KeyValueObject;

// The object that `value`, read from key `key` of `holder`, stands for on a key path. Null for null and for
// an object in destruction; raises Exception (undefined key) for anything that has no keys of its own.
KeyValueObject *objectOnPath(const KeyValueObject *holder, const QString &key, const QVariant &value);

} // namespace platform
