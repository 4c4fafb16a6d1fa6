// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "panelkit/value_transformers.h"

#include "platform/leading_integer.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

// The text of a value. Booleans and small integers are converted to digits, not to words or letters.
QString textualDescription(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return QString::number(value.toInt());
    default:
        return value.toString();
    }
}

qint32 leadingIntegerOrZero(const QString &text)
{
    const auto number = platform::leadingInteger(text);
    return number ? number->value : 0;
}

qint32 truncated(double number)
{
    using Limits = std::numeric_limits<qint32>;
    if (std::isnan(number))
        return 0;
    return qint32(std::clamp(number, double(Limits::min()), double(Limits::max())));
}

} // namespace

qint32 integerValue(const QVariant &value)
{
    if (isNumber(value))
        return truncated(value.toDouble());
    return value.typeId() == QMetaType::QString ? leadingIntegerOrZero(value.toString()) : 0;
}

double floatingPointValue(const QVariant &value)
{
    if (isNumber(value))
        return value.toDouble();
    static const QRegularExpression number(
        QStringLiteral("^\\s*([+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:[eE][+-]?[0-9]+)?)"));
    return value.typeId() == QMetaType::QString ? number.match(value.toString()).captured(1).toDouble() : 0;
}

bool QVBooleanValue(const QVariant &value)
{
    if (isNumber(value))
        return value.toDouble() != 0; // toBool() would round first
    if (value.typeId() != QMetaType::QString || value.toString().isEmpty())
        return false;
    const QChar first = value.toString().front().toLower();
    return first == u't' || first == u'y' || (first >= u'1' && first <= u'9');
}

QMetaType QVBooleanTransformer_M880::transformedValueClass() const
{
    return QMetaType::fromType<bool>();
}

QVariant QVBooleanTransformer_M880::transformedValue(const QVariant &value) const
{
    if (!value.isValid())
        return true;
    const QString description = textualDescription(value);
    const auto reads = [&description](QLatin1StringView word) {
        return description.compare(word, Qt::CaseInsensitive) == 0;
    };
    return reads(QLatin1StringView("true")) || reads(QLatin1StringView("enabled")) ||
           reads(QLatin1StringView("yes")) || integerValue(value) != 0;
}

QVariant QVBooleanTransformer_M880::reverseTransformedValue(const QVariant &value) const
{
    return QVBooleanValue(value) ? QStringLiteral("True") : QStringLiteral("False");
}

QMetaType QVNumberTransformer_M880::transformedValueClass() const
{
    return QMetaType::fromType<int>();
}

QVariant QVNumberTransformer_M880::transformedValue(const QVariant &value) const
{
    return leadingIntegerOrZero(textualDescription(value));
}

QVariant QVNumberTransformer_M880::reverseTransformedValue(const QVariant &value) const
{
    return value.isValid() ? QVariant(textualDescription(value)) : QVariant();
}
