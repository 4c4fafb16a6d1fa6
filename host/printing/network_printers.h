// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"

#include <QMap>

#include <functional>
#include <mutex>
#include <optional>

namespace host {

// Printers that announce themselves in the network. The print server has no queue for them; it makes one when
// it is asked to, and takes it away some time after it was last used. May be used by several threads at once;
// calls block.
class NetworkPrinters
{
public:
    // False from `found` ends the search, which else takes some seconds. Called for each printer once.
    void search(const std::function<bool(const Destination &)> &found);
    // Whether a search has found one of this name.
    bool hasFound(const QString &queue) const;
    // Has the server make a queue for one that was found, where it has none. False when it does not.
    bool makeQueue(const QString &queue);

private:
    std::optional<Destination> printer(const QString &queue) const;

    mutable std::mutex m_mutex;
    QMap<QString, Destination> m_found; // guarded
};

} // namespace host
