// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QString>
#include <QVariantMap>

#include <stdexcept>

namespace platform {

// What the platform raises: an undefined key, an index out of range, a layout that does not fit its owner.
// A plain value, thrown by value and caught by const reference. Only the places where a host calls in
// (panel creation, restore, save) and where Qt's event loop would be crossed catch it.
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
    // "name: reason", the text that is logged.
    QString description() const;
    // The user info as one line of text for the log, "{}" when empty.
    QString userInfoDescription() const;

private:
    QString m_name;
    QString m_reason;
    QVariantMap m_userInfo;
};

} // namespace platform
