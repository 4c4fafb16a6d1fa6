// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/notification_center.h"

#include <algorithm>

namespace platform {

const QString NSKeyValueChangeNewKey = QStringLiteral("NSKeyValueChangeNewKey");

struct NotificationCenter::Registration
{
    QPointer<QObject> observer;
    QString name;
    Handler handler;
    bool anySender = true;
    QPointer<QObject> sender;
    bool removed = false;

    bool isLive() const { return !removed && observer; }
    bool wants(const QString &posted, const QObject *from) const
    {
        return isLive() && name == posted && (anySender || (sender && sender == from));
    }
};

NotificationCenter::NotificationCenter() = default;

NotificationCenter::~NotificationCenter()
{
    // A delivery in progress holds its registrations; it must stop when the center is destroyed.
    for (const auto &registration : m_registrations)
        registration->removed = true;
}

void NotificationCenter::addObserver(QObject *observer, const QString &name, Handler handler, QObject *sender)
{
    Q_ASSERT(observer);
    std::erase_if(m_registrations, [](const auto &registration) { return !registration->isLive(); });
    auto registration = std::make_shared<Registration>();
    registration->observer = observer;
    registration->name = name;
    registration->handler = std::move(handler);
    registration->anySender = sender == nullptr;
    registration->sender = sender;
    m_registrations.push_back(std::move(registration));
}

void NotificationCenter::removeObserver(QObject *observer)
{
    std::erase_if(m_registrations, [observer](const auto &registration) {
        if (registration->observer == observer)
            registration->removed = true;
        return !registration->isLive();
    });
}

void NotificationCenter::postNotification(const QString &name, QObject *object, const QVariantMap &userInfo)
{
    std::vector<std::shared_ptr<Registration>> addressed;
    std::copy_if(m_registrations.begin(), m_registrations.end(), std::back_inserter(addressed),
                 [&](const auto &registration) { return registration->wants(name, object); });
    const Notification notification{name, object, userInfo};
    // From here on a handler may change or destroy this center.
    for (const auto &registration : addressed) {
        if (registration->isLive())
            registration->handler(notification);
    }
}

int NotificationCenter::registrationCount(const QObject *observer) const
{
    return static_cast<int>(
        std::count_if(m_registrations.begin(), m_registrations.end(), [observer](const auto &registration) {
            return registration->isLive() && registration->observer == observer;
        }));
}

} // namespace platform
