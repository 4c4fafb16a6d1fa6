// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/desktop_notification.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QJsonDocument>
#include <QJsonObject>
#include <QVariantMap>

namespace host {

namespace {

constexpr int patience = 5'000;     // milliseconds
constexpr int defaultDuration = -1; // chosen by the desktop
constexpr uint newNotification = 0;
enum Urgency : uchar { Normal = 1, Critical = 2 };

QDBusMessage callOf(const char *method)
{
    return QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QLatin1String(method));
}

} // namespace

bool showDesktopNotification(const QDBusConnection &bus, const QByteArray &notice)
{
    const QJsonObject object = QJsonDocument::fromJson(notice).object();
    const QDBusReply<QStringList> abilities = bus.call(callOf("GetCapabilities"), QDBus::Block, patience);
    if (!abilities.isValid())
        return false;
    QString text = object[QLatin1String("text")].toString();
    if (abilities.value().contains(QLatin1String("body-markup")))
        text = text.toHtmlEscaped();
    const bool isUrgent = object[QLatin1String("urgent")].toBool();
    QDBusMessage call = callOf("Notify");
    call.setArguments(
        {QStringLiteral("kelmar-print"), newNotification, QStringLiteral("kelmar-print"),
         object[QLatin1String("title")].toString(), text, QStringList(),
         QVariantMap{{QStringLiteral("desktop-entry"), QStringLiteral("org.kelmar.Print")},
                     {QStringLiteral("urgency"), QVariant::fromValue<uchar>(isUrgent ? Critical : Normal)}},
         defaultDuration});
    return bus.call(call, QDBus::Block, patience).type() == QDBusMessage::ReplyMessage;
}

} // namespace host
