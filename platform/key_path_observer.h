// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"
#include "platform/key_value_object.h"

#include <QMetaObject>
#include <QPointer>

#include <vector>

namespace platform {

// Observes one key path of one object, including replacements of objects along the path. Owned by the
// observing object. Becomes inactive when the observed object is destroyed.
class KELMAR_PLATFORM_EXPORT KeyPathObserver : public QObject
{
    Q_OBJECT
public:
    KeyPathObserver(KeyValueObject *object, const QString &keyPath, QObject *parent = nullptr);
    ~KeyPathObserver() override;

Q_SIGNALS:
    // The value at the path may have changed; read it again.
    void changed();

private:
    void hook();
    void onKey(qsizetype depth, const QString &key);

    QPointer<KeyValueObject> m_object;
    QStringList m_keys;
    std::vector<QMetaObject::Connection> m_connections;
};

} // namespace platform
