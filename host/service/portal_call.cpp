// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/portal_call.h"

#include "host/service/log.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace host {

namespace {

enum Response : uint { Done = 0, Cancelled = 1, Other = 2 };

// The application's unique bus name, from the handle of its request:
// /org/freedesktop/portal/desktop/request/1_42/TOKEN belongs to ":1.42". Empty if the handle has another
// form.
QString senderOf(const QString &handle)
{
    const QString prefix = QStringLiteral("/org/freedesktop/portal/desktop/request/");
    const QString part =
        handle.startsWith(prefix) ? handle.mid(prefix.size()).section(QLatin1Char('/'), 0, 0) : QString();
    const qsizetype split = part.indexOf(QLatin1Char('_'));
    if (split <= 0)
        return {};
    return QLatin1Char(':') + part.left(split) + QLatin1Char('.') + part.mid(split + 1);
}

} // namespace

PortalCall::PortalCall(ServiceLife &life, const QString &client, const QDBusConnection &bus,
                       const QDBusMessage &message)
    : m_use(life, client), m_bus(bus), m_message(message), m_dialog(life.dialogProgram(), this)
{
}

void PortalCall::run(const QString &handle, const QJsonObject &request, platform::UniqueFd document,
                     bool isJob, const Results &results)
{
    m_isJob = isJob;
    if (!m_bus.registerObject(handle, this, QDBusConnection::ExportScriptableSlots)) {
        qCWarning(lcService).noquote() << "there is a request already at" << handle;
        refuse(QStringLiteral("There is a request already at %1.").arg(handle));
        return;
    }
    m_handle = handle;
    connect(&m_dialog, &DialogProcess::answered, this, [this, results](const QJsonObject &answer) {
        const int response = answer.value(QLatin1String("response")).toInt(Other);
        if (m_replied) // withdrawn; the settings are no longer needed
            return;
        if (response == Done)
            reply(Done, results(answer));
        else
            reply(response == Cancelled ? Cancelled : Other);
    });
    connect(&m_dialog, &DialogProcess::ended, this, &PortalCall::deleteLater);
    if (!m_isJob)
        watchCallers(handle);
    m_dialog.start(request, std::move(document));
}

void PortalCall::watchCallers(const QString &handle)
{
    m_callers.setConnection(m_bus);
    m_callers.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&m_callers, &QDBusServiceWatcher::serviceUnregistered, this, &PortalCall::callerHasGone);
    const QString application = senderOf(handle);
    for (const QString &name : {m_message.service(), application}) {
        if (!name.isEmpty())
            m_callers.addWatchedService(name);
    }
    if (application.isEmpty())
        return;
    // The application may have left the bus before it was watched.
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    question << application;
    auto *asked = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(asked, &QDBusPendingCallWatcher::finished, this, [this, asked] {
        const QDBusPendingReply<bool> hasOwner = *asked;
        if (hasOwner.isValid() && !hasOwner.value())
            callerHasGone();
        asked->deleteLater();
    });
}

void PortalCall::callerHasGone()
{
    m_dialog.closeAbandoned();
    reply(Other);
}

void PortalCall::refuse(const QString &reason)
{
    reply(Other, {{QStringLiteral("message"), reason}});
    deleteLater();
}

void PortalCall::Close()
{
    if (!m_isJob)
        m_dialog.close();
    reply(Other);
}

void PortalCall::reply(uint response, const QVariantMap &results)
{
    if (std::exchange(m_replied, true))
        return;
    if (!m_handle.isEmpty())
        m_bus.unregisterObject(std::exchange(m_handle, {}));
    m_bus.send(m_message.createReply(QVariantList{response, results}));
}

} // namespace host
