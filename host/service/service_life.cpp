// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/service_life.h"

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

void ServiceLife::touch()
{
    m_timer.start();
}

} // namespace host
