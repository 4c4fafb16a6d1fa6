// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>
#include <vector>

namespace platform {

// User-info key under which a change notification carries the new value.
KELMAR_PLATFORM_EXPORT extern const QString NSKeyValueChangeNewKey;

struct Notification
{
    QString name;
    QObject *object = nullptr; // the sender, borrowed
    QVariantMap userInfo;
};

// Publish and subscribe by name, in one thread. Delivery is synchronous, in order of registration. An
// observer registered while a notification is delivered does not get that one; one removed meanwhile is not
// called any more. Registering twice delivers twice. A destroyed observer is skipped, so forgetting to remove
// is harmless.
class KELMAR_PLATFORM_EXPORT NotificationCenter
{
public:
    using Handler = std::function<void(const Notification &)>;

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    // Calls `handler` for notifications called `name` from `sender`, or from any sender when that is null.
    // `observer` must not be null; it is borrowed and only its life is watched.
    void addObserver(QObject *observer, const QString &name, Handler handler, QObject *sender = nullptr);
    // Forgets every registration of `observer`; nothing happens when there is none.
    void removeObserver(QObject *observer);
    void postNotification(const QString &name, QObject *object, const QVariantMap &userInfo = {});
    // Live registrations of one observer; for diagnosis.
    int registrationCount(const QObject *observer) const;

private:
    struct Registration;
    std::vector<std::shared_ptr<Registration>> m_registrations;
};

} // namespace platform
