// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/service/service_life.h"
#include "host/service/token_store.h"

#include <QDBusContext>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>

namespace host {

class PortalCall;

// The backend interface of the desktop's print portal. An application first requests the settings, with the
// dialog, then sends the document with the token for these settings. Arguments come from applications and are
// not trusted. `life` and the tokens are borrowed.
class PrintPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")
public:
    PrintPortal(ServiceLife &life, TokenStore &tokens) : m_life(life), m_tokens(tokens) {}

    static QString serviceName() { return QStringLiteral("org.freedesktop.impl.portal.desktop.kelmar"); }
    static QString objectPath() { return QStringLiteral("/org/freedesktop/portal/desktop"); }

public Q_SLOTS:
    // Both answer 0 (done), 1 (cancelled by the user) or 2 (other).
    Q_SCRIPTABLE uint PreparePrint(const QDBusObjectPath &handle, const QString &app_id,
                                   const QString &parent_window, const QString &title,
                                   const QVariantMap &settings, const QVariantMap &page_setup,
                                   const QVariantMap &options, QVariantMap &results);
    // Without a valid token for this application, the dialog opens with the document, so nothing is printed
    // without consent.
    Q_SCRIPTABLE uint Print(const QDBusObjectPath &handle, const QString &app_id,
                            const QString &parent_window, const QString &title,
                            const QDBusUnixFileDescriptor &fd, const QVariantMap &options,
                            QVariantMap &results);

private:
    // Null, with the call answered, if the application has too many requests.
    PortalCall *newCall(const QString &appId);

    ServiceLife &m_life;
    TokenStore &m_tokens;
};

} // namespace host
