// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"
#include "platform/key_path_observer.h"
#include "platform/value_transformer.h"

#include <QMetaProperty>
#include <QObject>
#include <QPointer>

#include <memory>

namespace platform {

// Links one property of a target (usually a widget) to a key path of an object. A child of its target; goes
// with it, or with unbind(). Two-way where the property has a notify signal, can be written and the
// transformer reverses; else one-way towards the target. Neither side echoes the other. When the object's
// setter raises, the exception is logged and the target goes back to what the key holds.
class KELMAR_PLATFORM_EXPORT Binding : public QObject
{
    Q_OBJECT
public:
    // Binds and brings the target to the key's value at once. A null object makes a binding that does
    // nothing. Raises Exception when the target has no such writable property or the object no such key. A
    // binding of the same property of the same target is replaced.
    static Binding *bind(QObject *target, const QString &property, KeyValueObject *object,
                         const QString &keyPath,
                         std::shared_ptr<const ValueTransformer> transformer = nullptr);
    // The binding of a property, or null.
    static Binding *infoForBinding(const QObject *target, const QString &property);
    // Removes the binding of a property at once; nothing happens when there is none.
    static void unbind(QObject *target, const QString &property);
    ~Binding() override;

    QString property() const;
    const QString &observedKeyPath() const { return m_keyPath; }
    KeyValueObject *observedObject() const { return m_object; }
    bool isTwoWay() const { return m_twoWay; }

public Q_SLOTS:
    // Brings the target to the key's value.
    void update();

private Q_SLOTS:
    void targetChanged();

private:
    Binding(QObject *target, const QMetaProperty &property, KeyValueObject *object, const QString &keyPath,
            std::shared_ptr<const ValueTransformer> transformer);

    void show(const QVariant &value);

    QMetaProperty m_property;
    QPointer<KeyValueObject> m_object;
    QString m_keyPath;
    std::shared_ptr<const ValueTransformer> m_transformer;
    bool m_twoWay = false;
    bool m_updating = false;
};

} // namespace platform
