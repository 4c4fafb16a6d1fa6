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

// The desktop's print portal calls this for applications that print through it: first for the settings, with
// the dialog, then with the document and the token that stands for them. Arguments are what applications
// sent; nothing about them is taken for granted. Life and tokens are borrowed.
class PrintPortal : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.impl.portal.Print")
public:
    PrintPortal(ServiceLife &life, TokenStore &tokens) : m_life(life), m_tokens(tokens) {}

    static QString serviceName() { return QStringLiteral("org.freedesktop.impl.portal.desktop.kelmar"); }
    static QString objectPath() { return QStringLiteral("/org/freedesktop/portal/desktop"); }

public Q_SLOTS:
    // Both answer 0 (done), 1 (cancelled by the user) or 2 (anything else).
    Q_SCRIPTABLE uint PreparePrint(const QDBusObjectPath &handle, const QString &app_id,
                                   const QString &parent_window, const QString &title,
                                   const QVariantMap &settings, const QVariantMap &page_setup,
                                   const QVariantMap &options, QVariantMap &results);
    // Without a token that is good for this application the dialog is opened with the document: nothing is
    // printed unasked.
    Q_SCRIPTABLE uint Print(const QDBusObjectPath &handle, const QString &app_id,
                            const QString &parent_window, const QString &title,
                            const QDBusUnixFileDescriptor &fd, const QVariantMap &options,
                            QVariantMap &results);

private:
    // Null, with the call answered, when the application has too many requests already.
    PortalCall *newCall(const QString &appId);

    ServiceLife &m_life;
    TokenStore &m_tokens;
};

} // namespace host
