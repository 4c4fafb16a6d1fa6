// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/desktop_color_scheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

namespace host {

namespace {

constexpr int patience = 3'000; // milliseconds

// A setting of the desktop; invalid if the portal does not have it. Read() wraps the value in two variants.
QVariant settingOf(const QDBusConnection &bus, const QString &space, const QString &key)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    call.setArguments({space, key});
    const QDBusReply<QDBusVariant> reply = bus.call(call, QDBus::Block, patience);
    if (!reply.isValid())
        return {};
    const QVariant value = reply.value().variant();
    return value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
}

} // namespace

QByteArray desktopContrastScheme(const QDBusConnection &bus)
{
    const QString appearance = QStringLiteral("org.freedesktop.appearance");
    constexpr uint higher = 1, preferDark = 1;
    const QString theme =
        settingOf(bus, QStringLiteral("org.gnome.desktop.interface"), QStringLiteral("gtk-theme")).toString();
    const bool isThemed = theme.startsWith(QLatin1String("HighContrast"), Qt::CaseInsensitive);
    if (settingOf(bus, appearance, QStringLiteral("contrast")).toUInt() != higher && !isThemed)
        return {};
    const bool isDark = theme.endsWith(QLatin1String("Inverse"), Qt::CaseInsensitive) ||
                        settingOf(bus, appearance, QStringLiteral("color-scheme")).toUInt() == preferDark;
    return isDark ? "high-contrast-dark" : "high-contrast";
}

} // namespace host
