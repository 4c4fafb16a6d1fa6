// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QMap>

#include <functional>
#include <mutex>
#include <optional>

namespace host {

// Printers that announce themselves on the network. The print server has no permanent queues for them: it
// creates a queue on request, and removes it some time after its last use. Thread-safe; calls block.
class NetworkPrinters
{
public:
    // Calls `found` once for each printer. If it returns false, the search ends; otherwise it takes some
    // seconds.
    void search(const std::function<bool(const Destination &)> &found);
    // Whether a search has found a printer of this name.
    bool hasFound(const QString &queue) const;
    // Requests a queue from the server for a printer that was found, unless there is one. False on failure.
    bool makeQueue(const QString &queue);

private:
    std::optional<Destination> printer(const QString &queue) const;

    mutable std::mutex m_mutex;
    QMap<QString, Destination> m_found; // guarded by the mutex
};

} // namespace host
