// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/value_conversion.h"

#include <QByteArray>
#include <QString>

#include <cstdlib>

qint64 wholeNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString:
    case QMetaType::QByteArray:
        return std::strtoll(value.toByteArray().constData(), nullptr, 10);
    default:
        return value.toLongLong();
    }
}

bool booleanValue(const QVariant &value)
{
    const QString text = value.toString().trimmed();
    if (text.isEmpty())
        return false;
    const QChar first = text.front();
    return (first >= u'1' && first <= u'9') || QStringView(u"yYtT").contains(first);
}
