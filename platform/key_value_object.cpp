// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/key_value_object.h"

#include "platform/exception.h"
#include "platform/key_path_observer.h"
#include "platform/key_path_p.h"
#include "platform/logging.h"
#include "platform/notification_center.h"

#include <QHash>
#include <QMetaProperty>
#include <QPointer>

#include <optional>

namespace platform {

namespace {

// class -> key -> keys that depend on it
using DependentKeys = QHash<const QMetaObject *, QHash<QString, QStringList>>;
Q_GLOBAL_STATIC(DependentKeys, dependentKeys)

// `key` and, once each, all keys that depend on it directly or indirectly.
QStringList affectedKeys(const QMetaObject *cls, const QString &key)
{
    QStringList affected{key};
    for (qsizetype i = 0; i < affected.size(); ++i) {
        for (const QMetaObject *c = cls; c; c = c->superClass()) {
            const auto ofClass = dependentKeys->constFind(c);
            if (ofClass == dependentKeys->constEnd())
                continue;
            for (const QString &dependent : ofClass->value(affected[i])) {
                if (!affected.contains(dependent))
                    affected.append(dependent);
            }
        }
    }
    return affected;
}

[[noreturn]] void raiseUndefinedKey(const QObject *object, const QString &key, const QString &what)
{
    const QString className = QString::fromUtf8(object->metaObject()->className());
    throw Exception(Exception::undefinedKeyName, QStringLiteral("%1: %2 \"%3\"").arg(className, what, key),
                    {{QStringLiteral("class"), className}, {QStringLiteral("key"), key}});
}

QMetaProperty propertyForKey(const QObject *object, const QString &key)
{
    const QMetaObject *meta = object->metaObject();
    return meta->property(meta->indexOfProperty(key.toUtf8().constData()));
}

bool isNumber(QMetaType type)
{
    const bool isText = type == QMetaType(QMetaType::QString) || type == QMetaType(QMetaType::QByteArray);
    return !isText && QMetaType::canConvert(type, QMetaType(QMetaType::Double));
}

// Converts a value to the type of a property. Null becomes an empty text, list or pointer, but is no number.
std::optional<QVariant> converted(const QVariant &value, const QMetaProperty &property)
{
    const QMetaType type = property.metaType();
    if (type == QMetaType::fromType<QVariant>() || type == value.metaType())
        return value;
    if (property.isEnumType())
        return value.isValid() ? std::optional(value) : std::nullopt; // written by name or by number
    if (!value.isValid())
        return isNumber(type) ? std::nullopt : std::optional(QVariant(type));
    QVariant result = value;
    if (!result.convert(type))
        return std::nullopt;
    return result;
}

// The object that has the last of `keys`, reached from `object` through the others; null if an object on the
// way is null.
KeyValueObject *holderOfLast(KeyValueObject *object, const QStringList &keys)
{
    for (qsizetype i = 0; object && i < keys.size() - 1; ++i)
        object = objectOnPath(object, keys[i], object->valueForKey(keys[i]));
    return object;
}

// One call of addObserverForKeyPath(). A child of the observed object.
class ObserverRegistration : public KeyPathObserver
{
public:
    ObserverRegistration(KeyValueObject *object, KeyValueObject *observer, const QString &keyPath)
        : KeyPathObserver(object, keyPath, object), m_observer(observer), m_keyPath(keyPath)
    {
        connect(observer, &QObject::destroyed, this, [this] { delete this; });
    }
    bool isOf(const KeyValueObject *observer, const QString &keyPath) const
    {
        return m_observer == observer && m_keyPath == keyPath;
    }

private:
    const KeyValueObject *m_observer;
    QString m_keyPath;
};

} // namespace

KeyValueObject *objectOnPath(const KeyValueObject *holder, const QString &key, const QVariant &value)
{
    if (!value.isValid())
        return nullptr;
    const QMetaType type = value.metaType();
    const bool isObject = type.flags().testFlag(QMetaType::PointerToQObject);
    QObject *object = isObject ? *static_cast<QObject *const *>(value.constData()) : nullptr;
    auto *keyed = qobject_cast<KeyValueObject *>(object);
    // An object in destruction is no longer a KeyValueObject; its declared type distinguishes it from an
    // object of the wrong class.
    const bool isDeclared =
        type.metaObject() && type.metaObject()->inherits(&KeyValueObject::staticMetaObject);
    if (!isObject || (object && !keyed && !isDeclared))
        raiseUndefinedKey(holder, key, QStringLiteral("no object with keys of its own under key"));
    return keyed;
}

KeyValueObject::KeyValueObject(QObject *parent) : QObject(parent) {}

KeyValueObject::~KeyValueObject() = default;

QVariant KeyValueObject::valueForKey(const QString &key)
{
    const QMetaProperty property = propertyForKey(this, key);
    if (!property.isReadable())
        raiseUndefinedKey(this, key, QStringLiteral("undefined key"));
    return property.read(this);
}

void KeyValueObject::setValueForKey(const QVariant &value, const QString &key)
{
    const QMetaProperty property = propertyForKey(this, key);
    if (!property.isValid())
        raiseUndefinedKey(this, key, QStringLiteral("undefined key"));
    if (!property.isWritable())
        raiseUndefinedKey(this, key, QStringLiteral("read-only key"));
    const std::optional<QVariant> argument = converted(value, property);
    if (!argument || !property.write(this, *argument)) {
        const QString given = value.isValid() ? QString::fromUtf8(value.typeName()) : QStringLiteral("null");
        throw Exception(Exception::invalidArgumentName,
                        QStringLiteral("%1: key \"%2\" takes %3, not this %4")
                            .arg(QString::fromUtf8(metaObject()->className()), key,
                                 QString::fromUtf8(property.typeName()), given),
                        {{QStringLiteral("key"), key}, {QStringLiteral("value"), value}});
    }
}

QVariant KeyValueObject::valueForKeyPath(const QString &keyPath)
{
    const QStringList keys = keyPath.split(QLatin1Char('.'));
    KeyValueObject *holder = holderOfLast(this, keys);
    return holder ? holder->valueForKey(keys.last()) : QVariant();
}

void KeyValueObject::setValueForKeyPath(const QVariant &value, const QString &keyPath)
{
    const QStringList keys = keyPath.split(QLatin1Char('.'));
    if (KeyValueObject *holder = holderOfLast(this, keys))
        holder->setValueForKey(value, keys.last());
}

void KeyValueObject::willChangeValueForKey(const QString &key)
{
    const QPointer<KeyValueObject> self(this);
    for (const QString &affected : affectedKeys(metaObject(), key)) {
        if (self)
            Q_EMIT valueWillChange(affected);
    }
}

void KeyValueObject::didChangeValueForKey(const QString &key)
{
    const QPointer<KeyValueObject> self(this);
    for (const QString &affected : affectedKeys(metaObject(), key)) {
        if (self)
            Q_EMIT valueDidChange(affected);
    }
}

void KeyValueObject::setKeysTriggerChangeNotificationsForDependentKey(const QMetaObject *cls,
                                                                      const QStringList &keys,
                                                                      const QString &dependentKey)
{
    QHash<QString, QStringList> &ofClass = (*dependentKeys)[cls];
    for (const QString &key : keys) {
        QStringList &dependents = ofClass[key];
        if (!dependents.contains(dependentKey))
            dependents.append(dependentKey);
    }
}

QStringList KeyValueObject::keysOfDependentKey(const QString &dependentKey) const
{
    QStringList keys;
    for (const QMetaObject *c = metaObject(); c; c = c->superClass()) {
        const QHash<QString, QStringList> ofClass = dependentKeys->value(c);
        for (auto it = ofClass.begin(); it != ofClass.end(); ++it) {
            if (it.value().contains(dependentKey))
                keys.append(it.key());
        }
    }
    return keys;
}

void KeyValueObject::addObserverForKeyPath(KeyValueObject *observer, const QString &keyPath, QObject *context)
{
    auto *registration = new ObserverRegistration(this, observer, keyPath);
    connect(registration, &KeyPathObserver::changed, observer,
            [this, observer, keyPath, context = QPointer<QObject>(context)] {
                try {
                    const QVariantMap change{{NSKeyValueChangeNewKey, valueForKeyPath(keyPath)}};
                    observer->observeValueForKeyPathOfObjectChangeContext(keyPath, this, change, context);
                } catch (const Exception &exception) {
                    qCWarning(lcPlatform).noquote() << exception.description();
                }
            });
}

void KeyValueObject::removeObserverForKeyPath(KeyValueObject *observer, const QString &keyPath)
{
    const QObjectList registrations = children();
    for (QObject *child : registrations) {
        auto *registration = dynamic_cast<ObserverRegistration *>(child);
        if (registration && registration->isOf(observer, keyPath))
            delete registration;
    }
}

void KeyValueObject::observeValueForKeyPathOfObjectChangeContext(const QString &, KeyValueObject *,
                                                                 const QVariantMap &, QObject *)
{
}

KeyChange::KeyChange(KeyValueObject *object, const QString &key) : m_object(object), m_key(key)
{
    m_object->willChangeValueForKey(m_key);
}

KeyChange::~KeyChange()
{
    m_object->didChangeValueForKey(m_key);
}

} // namespace platform
