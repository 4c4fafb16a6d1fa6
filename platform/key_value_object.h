// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace platform {

// An object whose values are read, set and observed by key. By default the keys are the declared Qt
// properties. Setters announce changes with KeyChange; observers of dependent keys are notified as well.
// Lives in the dialog's thread. A null value is the invalid QVariant.
class KELMAR_PLATFORM_EXPORT KeyValueObject : public QObject
{
    Q_OBJECT
public:
    explicit KeyValueObject(QObject *parent = nullptr);
    ~KeyValueObject() override;

    // The value of a key. Raises Exception (undefined key) if there is no such key.
    virtual QVariant valueForKey(const QString &key);
    // Sets a key. Raises Exception: undefined key if there is no such key or it is read-only, invalid
    // argument if the value cannot be converted to the type of the key. The setter of the key announces the
    // change.
    virtual void setValueForKey(const QVariant &value, const QString &key);

    // A path consists of keys joined by dots; all but the last key refer to a KeyValueObject. If an object
    // along the path is null, the value is null, and setting it does nothing.
    QVariant valueForKeyPath(const QString &keyPath);
    void setValueForKeyPath(const QVariant &value, const QString &keyPath);

    // Announce a change of `key` and of every key that depends on it. Calls must be paired and may nest.
    void willChangeValueForKey(const QString &key);
    void didChangeValueForKey(const QString &key);

    // Registers dependencies: from now on a change of any of `keys` in objects of class `cls` is also
    // announced for `dependentKey`. Call once per class; repeated calls have no effect.
    static void setKeysTriggerChangeNotificationsForDependentKey(const QMetaObject *cls,
                                                                 const QStringList &keys,
                                                                 const QString &dependentKey);
    // The keys on which a key of this object's class depends, as registered above.
    QStringList keysOfDependentKey(const QString &dependentKey) const;

    // Registers `observer` for changes of a key path of this object. After each change, its
    // observeValueForKeyPathOfObjectChangeContext() is called with the new value under
    // NSKeyValueChangeNewKey. Observer and context are borrowed. The registration ends when the observer or
    // this object is destroyed.
    void addObserverForKeyPath(KeyValueObject *observer, const QString &keyPath, QObject *context);
    // Removes the registrations of `observer` for that key path. Does nothing if there are none.
    void removeObserverForKeyPath(KeyValueObject *observer, const QString &keyPath);
    // Called after a change. The default implementation does nothing.
    virtual void observeValueForKeyPathOfObjectChangeContext(const QString &keyPath, KeyValueObject *object,
                                                             const QVariantMap &change, QObject *context);

Q_SIGNALS:
    void valueWillChange(const QString &key);
    void valueDidChange(const QString &key);
};

// Announces the change of one key for the duration of a scope.
class KELMAR_PLATFORM_EXPORT KeyChange
{
public:
    KeyChange(KeyValueObject *object, const QString &key);
    ~KeyChange();
    KeyChange(const KeyChange &) = delete;
    KeyChange &operator=(const KeyChange &) = delete;

private:
    KeyValueObject *m_object;
    QString m_key;
};

} // namespace platform
