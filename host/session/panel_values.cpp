// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/panel_values.h"

#include "host/printing/option_text.h"
#include "host/printing/ppd_document.h"
#include "platform/exception.h"
#include "platform/key_value_object.h"
#include "platform/logging.h"

#include <QCoreApplication>
#include <QMetaProperty>

#include <algorithm>
#include <limits>

namespace host {

namespace {

struct PanelValueText
{
    Q_DECLARE_TR_FUNCTIONS(PanelValueText)
};

// The object in a property, such as a panel's device settings; null for other values.
platform::KeyValueObject *objectOf(platform::KeyValueObject *owner, const QMetaProperty &property)
{
    return qobject_cast<platform::KeyValueObject *>(qvariant_cast<QObject *>(property.read(owner)));
}

QMetaProperty propertyOf(const QObject *object, const QString &key)
{
    return object->metaObject()->property(object->metaObject()->indexOfProperty(key.toUtf8().constData()));
}

// The property at the end of a key path; invalid for a PPD option of the panel.
QMetaProperty propertyAt(platform::KeyValueObject *object, const QString &keyPath)
{
    const QStringList keys = keyPath.split(QLatin1Char('.'));
    for (qsizetype i = 0; object && i < keys.size() - 1; ++i)
        object = objectOf(object, propertyOf(object, keys.at(i)));
    return object ? propertyOf(object, keys.last()) : QMetaProperty();
}

bool isDigits(const QString &text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

template <typename Number>
QVariant wholeNumber(const QString &text, QString *problem)
{
    const bool isSigned = std::numeric_limits<Number>::is_signed;
    const QString digits = isSigned && text.startsWith(QLatin1Char('-')) ? text.mid(1) : text;
    bool fits = false;
    const QVariant value = isSigned ? QVariant::fromValue(static_cast<Number>(text.toLongLong(&fits)))
                                    : QVariant::fromValue(static_cast<Number>(text.toULongLong(&fits)));
    // The conversion has changed a number that does not fit the type.
    if (isDigits(digits) && fits && value.toString().toLongLong() == text.toLongLong())
        return value;
    *problem = PanelValueText::tr("takes a whole number from %1 to %2")
                   .arg(std::numeric_limits<Number>::min())
                   .arg(std::numeric_limits<Number>::max());
    return {};
}

QVariant switchOf(const QString &text, QString *problem)
{
    // Panels do not use these words: "on" would be stored as off.
    const bool isForeign = text.compare(QLatin1String("on"), Qt::CaseInsensitive) == 0 ||
                           text.compare(QLatin1String("off"), Qt::CaseInsensitive) == 0;
    const auto on = isForeign ? std::nullopt : switchValue(text);
    if (!on)
        *problem = PanelValueText::tr("takes True or False");
    return on ? QVariant(*on) : QVariant();
}

// The text converted to this type. Null with a description of valid values if it cannot be converted.
QVariant typed(const QString &text, QMetaType type, QString *problem)
{
    switch (type.id()) {
    case QMetaType::Bool:
        return switchOf(text, problem);
    case QMetaType::Int:
        return wholeNumber<qint32>(text, problem);
    case QMetaType::UInt:
        return wholeNumber<quint32>(text, problem);
    case QMetaType::QString:
    case QMetaType::UnknownType: // an option of the PPD
        return text;
    default:
        *problem = PanelValueText::tr("cannot be set by a text");
        return {};
    }
}

// A description of valid texts for a key with this current value.
QString validTextLike(const QString &current)
{
    if (isDigits(current))
        return PanelValueText::tr("takes %1 digits").arg(current.size());
    if (!current.isEmpty())
        return PanelValueText::tr("takes %1 characters").arg(current.size());
    return PanelValueText::tr("does not take this value");
}

// Remembers the choices of a panel's options, and restores them on request.
class PanelSnapshot
{
public:
    PanelSnapshot(platform::KeyValueObject *object, const QStringList &keywords) : m_object(object)
    {
        for (const QString &keyword : keywords)
            m_values.insert(keyword, object->valueForKey(keyword));
    }
    void putBack()
    {
        for (auto it = m_values.begin(); it != m_values.end(); ++it) {
            if (it.value().isValid() && m_object->valueForKey(it.key()) != it.value())
                m_object->setValueForKey(it.value(), it.key());
        }
    }
    // The first changed option whose current choice the PPD does not have; null if there is none.
    QString optionWithUnknownChoice(const PpdDocument &ppd)
    {
        for (auto it = m_values.begin(); it != m_values.end(); ++it) {
            const auto option = ppd.option(it.key());
            if (option && m_object->valueForKey(it.key()) != it.value() &&
                !option->hasChoice(m_object->valueForKey(it.key()).toString()))
                return it.key();
        }
        return {};
    }

private:
    platform::KeyValueObject *m_object;
    QVariantMap m_values;
};

// Sets a key and returns the problem; empty if the key has accepted the value.
QString trySet(platform::KeyValueObject *object, PanelSnapshot *snapshot, const PpdDocument &ppd,
               const QString &keyPath, const QString &value)
{
    QString problem;
    const QVariant given = typed(value, propertyAt(object, keyPath).metaType(), &problem);
    if (!problem.isEmpty())
        return problem;
    const QString before = object->valueForKeyPath(keyPath).toString();
    try {
        object->setValueForKeyPath(given, keyPath);
    } catch (const platform::Exception &exception) {
        qCDebug(lcHost).noquote() << exception.name(); // the reason may contain the value
        return validTextLike(before);
    }
    const QString invalid = snapshot->optionWithUnknownChoice(ppd);
    if (!invalid.isNull() && !isDigits(before))
        return PanelValueText::tr("does not take this value: %1 has only %2")
            .arg(invalid, choicesInWords(ppd, invalid));
    return invalid.isNull() && object->valueForKeyPath(keyPath) == given ? QString() : validTextLike(before);
}

} // namespace

QStringList settableKeys(platform::KeyValueObject *object, const QStringList &keywords)
{
    QStringList keys;
    const QMetaObject *cls = object->metaObject();
    for (int i = platform::KeyValueObject::staticMetaObject.propertyCount(); i < cls->propertyCount(); ++i) {
        const QMetaProperty property = cls->property(i);
        const QString key = QString::fromUtf8(property.name());
        const QStringList parts = object->keysOfDependentKey(key);
        const bool isHere =
            parts.isEmpty() || std::any_of(parts.begin(), parts.end(),
                                           [&](const QString &part) { return keywords.contains(part); });
        if (property.isWritable() && property.isStored()) {
            if (isHere)
                keys.append(key);
        } else if (platform::KeyValueObject *inner = objectOf(object, property)) {
            for (const QString &innerKey : settableKeys(inner, keywords))
                keys.append(key + QLatin1Char('.') + innerKey);
        }
    }
    return keys;
}

QString setPanelValue(platform::KeyValueObject *object, const QStringList &keywords, const PpdDocument &ppd,
                      const QString &keyPath, const QString &value)
{
    QString problem;
    try {
        PanelSnapshot snapshot(object, keywords);
        problem = trySet(object, &snapshot, ppd, keyPath, value);
        if (!problem.isEmpty())
            snapshot.putBack();
    } catch (const platform::Exception &exception) {
        qCDebug(lcHost).noquote() << exception.name();
        problem = PanelValueText::tr("does not take this value");
    }
    return problem.isEmpty() ? QString()
                             : PanelValueText::tr("%1 %2.", "a key, and what it takes").arg(keyPath, problem);
}

QString choicesInWords(const PpdDocument &ppd, const QString &keyword)
{
    const auto option = ppd.option(keyword);
    QStringList keywords;
    for (const PpdOption::Choice &choice : option ? option->choices : QList<PpdOption::Choice>())
        keywords.append(choice.keyword);
    if (keywords.isEmpty())
        return PanelValueText::tr("none");
    if (keywords.size() > 2 && isDigits(keywords.first()) && isDigits(keywords.last()))
        return QStringLiteral("%1 … %2").arg(keywords.first(), keywords.last());
    return keywords.join(QStringLiteral(", "));
}

} // namespace host
