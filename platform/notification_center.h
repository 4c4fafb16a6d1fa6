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

// User-info key of the new value in a change notification.
KELMAR_PLATFORM_EXPORT extern const QString NSKeyValueChangeNewKey;

struct Notification
{
    QString name;
    QObject *object = nullptr; // the sender, borrowed
    QVariantMap userInfo;
};

// Publish and subscribe by name, within one thread. Delivery is synchronous, in order of registration. An
// observer registered during the delivery of a notification does not receive it; an observer removed
// meanwhile is not called. Registering twice delivers twice. Destroyed observers are skipped, so removing
// them is optional.
class KELMAR_PLATFORM_EXPORT NotificationCenter
{
public:
    using Handler = std::function<void(const Notification &)>;

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    // Calls `handler` for notifications called `name` from `sender`, or from any sender if that is null.
    // `observer` must not be null; it is borrowed, and the registration ends when it is destroyed.
    void addObserver(QObject *observer, const QString &name, Handler handler, QObject *sender = nullptr);
    // Removes all registrations of `observer`. Does nothing if there are none.
    void removeObserver(QObject *observer);
    void postNotification(const QString &name, QObject *object, const QVariantMap &userInfo = {});
    // The number of active registrations of an observer; for diagnosis.
    int registrationCount(const QObject *observer) const;

private:
    struct Registration;
    std::vector<std::shared_ptr<Registration>> m_registrations;
};

} // namespace platform
