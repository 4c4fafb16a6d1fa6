// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "device/snmp_value.h"

#include "device/string_encoding.h"

#include <QByteArray>

#include <cstring>

namespace {

QVariant integerOf(const netsnmp_variable_list &variable)
{
    if (variable.val.integer == nullptr)
        return {};
    // net-snmp stores integers as long, although only 32 bits are transferred.
    if (variable.val_len >= sizeof(long)) {
        long value = 0;
        std::memcpy(&value, variable.val.integer, sizeof value);
        return static_cast<qint32>(value);
    }
    qint32 value = 0;
    if (variable.val_len < sizeof value)
        return {};
    std::memcpy(&value, variable.val.integer, sizeof value);
    return value;
}

QVariant stringOf(const netsnmp_variable_list &variable, quint32 charSet, bool asData)
{
    if (variable.val.string == nullptr && variable.val_len != 0)
        return {};
    const QByteArrayView bytes(variable.val.string, static_cast<qsizetype>(variable.val_len));
    if (asData)
        return bytes.isEmpty() ? QByteArray("") : bytes.toByteArray();
    const QString text = decodedString(bytes, charSet);
    return text.isNull() ? QVariant() : QVariant(text);
}

} // namespace

QVariant valueOfVariable(const netsnmp_variable_list &variable, quint32 charSet, bool stringsAsData)
{
    switch (variable.type) {
    case ASN_BOOLEAN:
        // True if present.
        return QVariant(variable.val.string != nullptr);
    case ASN_INTEGER:
    case SNMP_NOSUCHOBJECT:
        return integerOf(variable);
    case ASN_OCTET_STR:
        return stringOf(variable, charSet, stringsAsData);
    default:
        return {};
    }
}
