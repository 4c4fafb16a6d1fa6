// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/portal_call.h"

#include "host/service/log.h"

namespace host {

namespace {

enum Response : uint { Done = 0, Cancelled = 1, Other = 2 };

}

PortalCall::PortalCall(ServiceLife &life, const QDBusConnection &bus, const QDBusMessage &message)
    : m_use(life), m_bus(bus), m_message(message), m_dialog(life.dialogProgram(), this)
{
}

void PortalCall::run(const QString &handle, const QJsonObject &request, platform::UniqueFd document,
                     bool isJob, const Results &results)
{
    m_isJob = isJob;
    if (!m_bus.registerObject(handle, this, QDBusConnection::ExportScriptableSlots)) {
        qCWarning(lcService).noquote() << "there is a request already at" << handle;
        refuse();
        return;
    }
    m_handle = handle;
    connect(&m_dialog, &DialogProcess::answered, this, [this, results](const QJsonObject &answer) {
        const int response = answer.value(QLatin1String("response")).toInt(Other);
        if (m_replied) // taken back; what was chosen is of no use to anybody
            return;
        if (response == Done)
            reply(Done, results(answer));
        else
            reply(response == Cancelled ? Cancelled : Other);
    });
    connect(&m_dialog, &DialogProcess::ended, this, &PortalCall::deleteLater);
    m_dialog.start(request, std::move(document));
}

void PortalCall::refuse()
{
    reply(Other);
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
