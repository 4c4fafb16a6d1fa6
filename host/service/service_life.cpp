// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/service_life.h"

#include "host/service/log.h"

namespace host {

ServiceLife::ServiceLife(const QString &dialogProgram, std::chrono::milliseconds idleTime)
    : m_dialogProgram(dialogProgram)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(idleTime);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        if (!isUsed())
            Q_EMIT idle();
    });
    m_timer.start();
}

QString ServiceLife::refusal(const QString &client) const
{
    QString reason;
    if (m_uses >= mostRequests)
        reason = QStringLiteral("Too many print dialogs are open (%1).").arg(m_uses);
    else if (m_usesOf.value(client) >= mostRequestsOfOne)
        reason = QStringLiteral("Too many print dialogs of this application are open (%1).")
                     .arg(m_usesOf.value(client));
    if (!reason.isNull())
        qCWarning(lcService) << "refused a request of" << client << reason;
    return reason;
}

ServiceLife::Use::Use(ServiceLife &life, const QString &client) : m_life(life), m_client(client)
{
    ++m_life.m_uses;
    ++m_life.m_usesOf[m_client];
}

ServiceLife::Use::~Use()
{
    --m_life.m_uses;
    if (--m_life.m_usesOf[m_client] == 0)
        m_life.m_usesOf.remove(m_client);
    m_life.touch();
}

void ServiceLife::touch()
{
    m_timer.start();
}

} // namespace host
