// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/exception.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace platform {

const QString Exception::undefinedKeyName = QStringLiteral("UndefinedKeyException");
const QString Exception::rangeName = QStringLiteral("RangeException");
const QString Exception::invalidArgumentName = QStringLiteral("InvalidArgumentException");
const QString Exception::layoutName = QStringLiteral("LayoutException");

Exception::Exception(const QString &name, const QString &reason, const QVariantMap &userInfo)
    : std::runtime_error((name + QStringLiteral(": ") + reason).toStdString()), m_name(name),
      m_reason(reason), m_userInfo(userInfo)
{
}

Exception::~Exception() = default;

QString Exception::description() const
{
    return m_name + QStringLiteral(": ") + m_reason;
}

QString Exception::userInfoDescription() const
{
    return QString::fromUtf8(
        QJsonDocument(QJsonObject::fromVariantMap(m_userInfo)).toJson(QJsonDocument::Compact));
}

} // namespace platform
