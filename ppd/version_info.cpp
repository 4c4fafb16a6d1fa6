// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "ppd/version_info.h"

#include "platform/leading_integer.h"

#include <QStringList>

#include <compare>

const QString QVTigerDarwinVersion = QStringLiteral("8.0");
const QString QVLeopardDarwinVersion = QStringLiteral("9.0");
const QString QVSnowLeopardDarwinVersion = QStringLiteral("10.0");

namespace {

qint32 integerValue(QStringView part)
{
    const auto number = platform::leadingInteger(part);
    return number ? number->value : 0;
}

} // namespace

std::shared_ptr<const QVVersionInfo_M880> QVVersionInfo_M880::versionInfoWithString(const QString &string)
{
    std::shared_ptr<QVVersionInfo_M880> version(new QVVersionInfo_M880);
    if (!version->initWithString(string))
        return nullptr;
    return version;
}

bool QVVersionInfo_M880::initWithString(const QString &string)
{
    if (string.isEmpty())
        return false;
    const QStringList parts = string.split(u'.');
    if (parts.size() > 3)
        return false;

    m_major = integerValue(parts[0]);
    if (parts.size() > 1) {
        m_minor = integerValue(parts[1]);
        m_minorPrecision = qint32(parts[1].size());
    }
    if (parts.size() > 2) {
        m_other = integerValue(parts[2]);
        m_otherPrecision = qint32(parts[2].size());
    }
    m_reformatted =
        QString::asprintf("%d.%0*d.%0*d", m_major, m_minorPrecision, m_minor, m_otherPrecision, m_other);
    return true;
}

QString QVVersionInfo_M880::description() const
{
    return u'v' + m_reformatted;
}

int QVVersionInfo_M880::compare(const QVVersionInfo_M880 &other) const
{
    for (const auto order :
         {m_major <=> other.m_major, m_minor <=> other.m_minor, m_other <=> other.m_other}) {
        if (order != 0)
            return order < 0 ? -1 : 1;
    }
    return 0;
}

int QVVersionInfo_M880::compare(const QString &string) const
{
    const auto other = versionInfoWithString(string);
    return compare(other ? *other : QVVersionInfo_M880());
}
