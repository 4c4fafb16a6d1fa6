// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/support/child_process.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

inline const QString portalName = QStringLiteral("org.freedesktop.impl.portal.desktop.kelmar");
inline const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
inline const QString connectionName = QStringLiteral("service-test");
constexpr int patience = 20000; // milliseconds, on a busy machine

struct Answer
{
    int response = -1; // -1 if the call failed
    QVariantMap results;
    uint token() const { return results.value(QStringLiteral("token")).toUInt(); }
    QVariantMap map(const QString &name) const
    {
        return qdbus_cast<QVariantMap>(results.value(name).value<QDBusArgument>());
    }
};

Answer answerOf(const QDBusMessage &reply);

// A notification server that supports markup.
class Desktop : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QString title, text;
    QVariantMap hints;

public Q_SLOTS:
    QStringList GetCapabilities() { return {QStringLiteral("body"), QStringLiteral("body-markup")}; }
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body,
                const QStringList &, const QVariantMap &given, int)
    {
        title = summary;
        text = body;
        hints = given;
        return 1;
    }
};

// The desktop portal's settings; missing ones are errors.
class DesktopSettings : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    QVariantMap values;

public Q_SLOTS:
    QDBusVariant Read(const QString &space, const QString &key)
    {
        if (!values.contains(space + QLatin1Char('/') + key))
            sendErrorReply(QStringLiteral("org.freedesktop.portal.Error.NotFound"), key);
        return QDBusVariant(QVariant::fromValue(QDBusVariant(values.value(space + QLatin1Char('/') + key))));
    }
};

// The service on a private bus, called like the portal and the queue; a script replaces the dialog. Base
// class of tests.
class ServiceFixture : public QObject
{
    Q_OBJECT
protected:
    void startBus();
    void stopAll();
    void startService(const QStringList &arguments = {});
    QDBusMessage prepareCall(const QString &title, const QVariantMap &settings = {},
                             const QString &appId = {}, const QString &handle = {},
                             const QVariantMap &options = {{QStringLiteral("modal"), QStringLiteral("x")}});
    QDBusMessage openCall(const QByteArray &title);
    // The PIDs of the children of the service.
    QByteArray dialogProcesses() const;
    QDBusMessage printCall(uint token, const QString &appId = {}, const QString &title = QStringLiteral("T"));
    Answer call(const QDBusMessage &message);
    bool serviceIsGone() const { return m_service->state() == QProcess::NotRunning; }
    // The requests that the dialogs have received, one per line.
    QByteArray log(const QString &suffix = {}) const;
    QJsonObject lastRequest() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    ChildProcess m_daemon;
    ChildProcess m_service;
    QDBusConnection m_bus{connectionName};
    int m_calls = 0;
};
