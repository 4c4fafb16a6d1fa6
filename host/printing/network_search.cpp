// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/network_search.h"

#include "host/printing/print_system.h"
#include "platform/background.h"

#include <QList>

#include <chrono>
#include <mutex>
#include <utility>

namespace host {

namespace {

constexpr std::chrono::milliseconds betweenLooks(150);

}

// State shared by a search and its receiver.
struct NetworkSearch::Finds
{
    std::mutex mutex;
    QList<Destination> untold; // guarded by the mutex
    bool isWanted = true;      // guarded by the mutex
};

NetworkSearch::NetworkSearch(PrintSystem &system, QObject *parent) : QObject(parent), m_system(system)
{
    m_look.setInterval(betweenLooks);
    connect(&m_look, &QTimer::timeout, this, &NetworkSearch::tell);
}

NetworkSearch::~NetworkSearch()
{
    if (!m_finds)
        return;
    const std::lock_guard lock(m_finds->mutex);
    m_finds->isWanted = false;
}

void NetworkSearch::begin()
{
    if (m_finds)
        return;
    m_finds = std::make_shared<Finds>();
    const auto search = [&system = m_system, finds = m_finds] {
        system.searchNetwork([&finds](const Destination &printer) {
            const std::lock_guard lock(finds->mutex);
            finds->untold.append(printer);
            return finds->isWanted;
        });
    };
    platform::Background::start(search, this, [this] {
        m_look.stop();
        tell();
        m_finds.reset();
        Q_EMIT ended();
    });
    m_look.start();
}

void NetworkSearch::tell()
{
    QList<Destination> fresh;
    {
        const std::lock_guard lock(m_finds->mutex);
        fresh = std::exchange(m_finds->untold, {});
    }
    for (const Destination &printer : fresh)
        Q_EMIT found(printer);
}

} // namespace host
