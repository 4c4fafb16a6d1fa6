// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QString>
#include <QVariantMap>

#include <stdexcept>

namespace platform {

// Raised for misuse of the platform: an undefined key, an index out of range, a layout that does not match
// its owner. A plain value, thrown by value and caught by const reference. It is caught only where a host
// calls into a panel (creation, restore, save) and where it would otherwise cross Qt's event loop.
class KELMAR_PLATFORM_EXPORT Exception : public std::runtime_error
{
public:
    static const QString undefinedKeyName;    // "UndefinedKeyException"
    static const QString rangeName;           // "RangeException"
    static const QString invalidArgumentName; // "InvalidArgumentException"
    static const QString layoutName;          // "LayoutException"

    Exception(const QString &name, const QString &reason, const QVariantMap &userInfo = {});
    Exception(const Exception &) = default;
    Exception &operator=(const Exception &) = default;
    ~Exception() override;

    const QString &name() const { return m_name; }
    const QString &reason() const { return m_reason; }
    const QVariantMap &userInfo() const { return m_userInfo; }
    // "name: reason", for the log.
    QString description() const;
    // The user info as a single line for the log; "{}" if empty.
    QString userInfoDescription() const;

private:
    QString m_name;
    QString m_reason;
    QVariantMap m_userInfo;
};

} // namespace platform
