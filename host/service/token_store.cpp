// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/token_store.h"

#include <QRandomGenerator>

#include <algorithm>

namespace host {

TokenStore::TokenStore(std::chrono::milliseconds lifetime) : m_lifetime(lifetime)
{
    m_oldest.setSingleShot(true);
    connect(&m_oldest, &QTimer::timeout, this, &TokenStore::dropOld);
}

uint TokenStore::add(const QString &appId, const QJsonObject &job)
{
    uint token = 0;
    while (token == 0 || m_entries.contains(token))
        token = QRandomGenerator::system()->generate();
    m_entries.insert(token, {appId, job, QDeadlineTimer(m_lifetime)});
    if (!m_oldest.isActive())
        m_oldest.start(m_lifetime);
    return token;
}

std::optional<QJsonObject> TokenStore::take(uint token, const QString &appId)
{
    const auto entry = m_entries.constFind(token);
    if (entry == m_entries.constEnd() || entry->deadline.hasExpired() || entry->appId != appId)
        return std::nullopt;
    const QJsonObject job = entry->job;
    m_entries.erase(entry);
    dropOld();
    return job;
}

void TokenStore::dropOld()
{
    m_entries.removeIf([](const auto &entry) { return entry->deadline.hasExpired(); });
    m_oldest.stop();
    if (m_entries.isEmpty()) {
        Q_EMIT emptied();
        return;
    }
    std::chrono::nanoseconds next = m_lifetime;
    for (const Entry &entry : std::as_const(m_entries))
        next = std::min(next, entry.deadline.remainingTimeAsDuration());
    // Rounded up, so that the token has expired then.
    m_oldest.start(std::chrono::ceil<std::chrono::milliseconds>(next) + std::chrono::milliseconds(1));
}

} // namespace host
