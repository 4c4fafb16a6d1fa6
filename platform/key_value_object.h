// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace platform {

// An object whose values are read, set and observed by key. Without overriding, the keys are the declared Qt
// properties. Setters announce their change with KeyChange; observers of a key that depends on it are told
// too. Lives in the dialog's thread. Null is the invalid QVariant.
class KELMAR_PLATFORM_EXPORT KeyValueObject : public QObject
{
    Q_OBJECT
public:
    explicit KeyValueObject(QObject *parent = nullptr);
    ~KeyValueObject() override;

    // The value of a key. Raises Exception (undefined key) when the object has no such key.
    virtual QVariant valueForKey(const QString &key);
    // Raises Exception: undefined key when there is no such key or it is read-only, invalid argument when the
    // value cannot be converted to the key's type. The setter behind the key makes the announcements.
    virtual void setValueForKey(const QVariant &value, const QString &key);

    // A path is keys joined by dots; each but the last names a KeyValueObject. A null object on the way gives
    // null, and a set through it does nothing.
    QVariant valueForKeyPath(const QString &keyPath);
    void setValueForKeyPath(const QVariant &value, const QString &keyPath);

    // Announce a change of `key` and, with it, of every key that depends on it. Calls pair up and may nest.
    void willChangeValueForKey(const QString &key);
    void didChangeValueForKey(const QString &key);

    // From now on a change of any of `keys` in objects of class `cls` is announced for `dependentKey` too.
    // Meant to be called once a class; repeating it changes nothing.
    static void setKeysTriggerChangeNotificationsForDependentKey(const QMetaObject *cls,
                                                                 const QStringList &keys,
                                                                 const QString &dependentKey);
    // The keys that were registered so for a dependent key of this object's class.
    QStringList keysOfDependentKey(const QString &dependentKey) const;

    // Registers `observer` for the changes of a key path of this object: after each, its
    // observeValueForKeyPathOfObjectChangeContext() runs with the new value under NSKeyValueChangeNewKey.
    // Observer and context are borrowed; registrations end with the observer or with this object.
    void addObserverForKeyPath(KeyValueObject *observer, const QString &keyPath, QObject *context);
    // Removes the registrations of `observer` under that key path; nothing happens when there is none.
    void removeObserverForKeyPath(KeyValueObject *observer, const QString &keyPath);
    // The default does nothing.
    virtual void observeValueForKeyPathOfObjectChangeContext(const QString &keyPath, KeyValueObject *object,
                                                             const QVariantMap &change, QObject *context);

Q_SIGNALS:
    void valueWillChange(const QString &key);
    void valueDidChange(const QString &key);
};

// Announces the change of one key for the length of a scope.
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
