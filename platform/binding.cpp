// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/binding.h"

#include "platform/exception.h"
#include "platform/key_value_object.h"
#include "platform/logging.h"

#include <QWidget>

#include <optional>

namespace platform {

namespace {

// Converts a value to the type of the property. Null becomes the type's default value. No result if it cannot
// be converted.
std::optional<QVariant> converted(const QVariant &value, const QMetaProperty &property)
{
    const QMetaType type = property.metaType();
    if (type == QMetaType::fromType<QVariant>() || type == value.metaType())
        return value;
    if (!value.isValid())
        return QVariant(type);
    if (property.isEnumType())
        return value; // written by name or by number
    QVariant result = value;
    if (!result.convert(type))
        return std::nullopt;
    return result;
}

bool isSame(const QVariant &a, const QVariant &b)
{
    return a.metaType() == b.metaType() && a == b;
}

// Showing a widget without a parent would open it as a window. Instead it is only marked as not hidden, so
// that it appears when it gets a parent.
bool unhideWithoutShowing(QObject *target, const QMetaProperty &property, const QVariant &value)
{
    auto *widget = qobject_cast<QWidget *>(target);
    if (!widget || widget->parentWidget() || qstrcmp(property.name(), "visible") != 0 || !value.toBool())
        return false;
    if (widget->isHidden())
        widget->setAttribute(Qt::WA_WState_ExplicitShowHide, false);
    return true;
}

} // namespace

Binding *Binding::bind(QObject *target, const QString &property, KeyValueObject *object,
                       const QString &keyPath, std::shared_ptr<const ValueTransformer> transformer)
{
    const QMetaObject *meta = target->metaObject();
    const QMetaProperty metaProperty = meta->property(meta->indexOfProperty(property.toUtf8().constData()));
    if (!metaProperty.isWritable())
        throw Exception(Exception::invalidArgumentName,
                        QStringLiteral("%1 has no writable property \"%2\"")
                            .arg(QString::fromUtf8(meta->className()), property));
    const QVariant value = object ? object->valueForKeyPath(keyPath) : QVariant();
    unbind(target, property);
    std::unique_ptr<Binding> binding(
        new Binding(target, metaProperty, object, keyPath, std::move(transformer)));
    if (object)
        binding->show(value);
    return binding.release();
}

Binding *Binding::infoForBinding(const QObject *target, const QString &property)
{
    const auto bindings = target->findChildren<Binding *>(QString(), Qt::FindDirectChildrenOnly);
    for (Binding *binding : bindings) {
        if (binding->property() == property)
            return binding;
    }
    return nullptr;
}

void Binding::unbind(QObject *target, const QString &property)
{
    delete infoForBinding(target, property);
}

Binding::Binding(QObject *target, const QMetaProperty &property, KeyValueObject *object,
                 const QString &keyPath, std::shared_ptr<const ValueTransformer> transformer)
    : QObject(target), m_property(property), m_object(object), m_keyPath(keyPath),
      m_transformer(std::move(transformer))
{
    if (!object)
        return;
    auto *observer = new KeyPathObserver(object, keyPath, this);
    connect(observer, &KeyPathObserver::changed, this, &Binding::update);
    m_twoWay = property.hasNotifySignal() && property.isReadable() &&
               (!m_transformer || m_transformer->allowsReverseTransformation());
    if (m_twoWay) {
        const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("targetChanged()"));
        connect(target, property.notifySignal(), this, slot);
    }
}

Binding::~Binding() = default;

QString Binding::property() const
{
    return QString::fromUtf8(m_property.name());
}

void Binding::update()
{
    if (!m_object)
        return;
    try {
        show(m_object->valueForKeyPath(m_keyPath));
    } catch (const Exception &exception) {
        qCWarning(lcPlatform).noquote() << exception.description();
    }
}

void Binding::show(const QVariant &value)
{
    const std::optional<QVariant> shown =
        converted(m_transformer ? m_transformer->transformedValue(value) : value, m_property);
    if (!shown) {
        qCWarning(lcPlatform).noquote()
            << QStringLiteral("key \"%1\" holds a %2 that property \"%3\" cannot show")
                   .arg(m_keyPath, QString::fromUtf8(value.typeName()), property());
        return;
    }
    QObject *target = parent();
    // Without a notify signal the property may differ from the value that was set: a child of a hidden window
    // is not visible, and a child of a disabled panel is not enabled, but both must still be set.
    if (m_property.hasNotifySignal() && isSame(m_property.read(target), *shown))
        return;
    if (unhideWithoutShowing(target, m_property, *shown))
        return;
    const QPointer<Binding> self(this); // writing may delete the target, and thus this object
    const bool wasUpdating = m_updating;
    m_updating = true;
    m_property.write(target, *shown);
    if (self)
        m_updating = wasUpdating;
}

void Binding::targetChanged()
{
    if (m_updating || !m_object)
        return;
    const QPointer<Binding> self(this);
    try {
        const QVariant value = m_property.read(parent());
        m_object->setValueForKeyPath(m_transformer ? m_transformer->reverseTransformedValue(value) : value,
                                     m_keyPath);
    } catch (const Exception &exception) {
        qCWarning(lcPlatform).noquote() << exception.description();
        if (self)
            update();
    }
}

} // namespace platform
