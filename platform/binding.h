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

// Links a property of a target (usually a widget) to a key path of an object. A child of its target; it is
// destroyed with the target or by unbind(). The binding is two-way if the property has a notify signal and is
// writable, and the transformer is reversible; otherwise it only updates the target. It creates no feedback
// loops. If the setter of the object raises an exception, the exception is logged and the target is reset to
// the value of the key.
class KELMAR_PLATFORM_EXPORT Binding : public QObject
{
    Q_OBJECT
public:
    // Creates a binding and sets the target to the value of the key. If the object is null, the binding has
    // no effect. Raises Exception if the target has no such writable property or the object has no such key.
    // Replaces an existing binding of the same property.
    static Binding *bind(QObject *target, const QString &property, KeyValueObject *object,
                         const QString &keyPath,
                         std::shared_ptr<const ValueTransformer> transformer = nullptr);
    // The binding of a property, or null.
    static Binding *infoForBinding(const QObject *target, const QString &property);
    // Removes the binding of a property. Does nothing if there is none.
    static void unbind(QObject *target, const QString &property);
    ~Binding() override;

    QString property() const;
    const QString &observedKeyPath() const { return m_keyPath; }
    KeyValueObject *observedObject() const { return m_object; }
    bool isTwoWay() const { return m_twoWay; }

public Q_SLOTS:
    // Sets the target to the value of the key.
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
