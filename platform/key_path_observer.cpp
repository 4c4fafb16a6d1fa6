// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/key_path_observer.h"

#include "platform/exception.h"
#include "platform/key_path_p.h"

namespace platform {

KeyPathObserver::KeyPathObserver(KeyValueObject *object, const QString &keyPath, QObject *parent)
    : QObject(parent), m_object(object), m_keys(keyPath.split(QLatin1Char('.')))
{
    hook();
}

KeyPathObserver::~KeyPathObserver() = default;

void KeyPathObserver::hook()
{
    for (const QMetaObject::Connection &connection : m_connections)
        disconnect(connection);
    m_connections.clear();

    KeyValueObject *object = m_object;
    for (qsizetype depth = 0; object && depth < m_keys.size(); ++depth) {
        m_connections.push_back(connect(object, &KeyValueObject::valueDidChange, this,
                                        [this, depth](const QString &key) { onKey(depth, key); }));
        if (depth > 0) {
            m_connections.push_back(connect(object, &QObject::destroyed, this,
                                            [this, depth] { onKey(depth - 1, m_keys[depth - 1]); }));
        }
        if (depth == m_keys.size() - 1)
            break;
        try {
            object = objectOnPath(object, m_keys[depth], object->valueForKey(m_keys[depth]));
        } catch (const Exception &) {
            // The reader of the path gets the exception. There is nothing further along the path to observe.
            break;
        }
    }
}

void KeyPathObserver::onKey(qsizetype depth, const QString &key)
{
    if (key != m_keys[depth])
        return;
    if (depth < m_keys.size() - 1)
        hook();
    Q_EMIT changed(); // may delete this
}

} // namespace platform
