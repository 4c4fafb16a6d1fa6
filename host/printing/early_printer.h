// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/ppd_document.h"

#include <QString>

#include <future>
#include <memory>
#include <mutex>
#include <optional>

namespace host {

// The destination and PPD of the first dialog, including the constraints, requested on a worker thread during
// program startup. Each can be taken once, by the first caller, who may wait for it; no other call waits. If
// a request fails, the caller queries the print system itself, and gets the localised error or the login
// prompt there. Thread-safe. The worker owns its data, so this object may be destroyed before the worker
// ends.
class EarlyPrinter
{
public:
    // Requests this destination; if the name is empty, the one that was used last, else the user's default.
    // Requires the organization and application names, but no QCoreApplication.
    explicit EarlyPrinter(const QString &name);

    // The destination, if `name` is the one that was requested. Blocks until the server has responded. Null
    // for another name, after a failure, and from the second call on.
    std::optional<Destination> takeDestination(const QString &name);
    // The PPD of the queue returned by takeDestination(), under the same conditions.
    std::unique_ptr<PpdDocument> takePpd(const QString &queue);

private:
    std::mutex m_mutex;                 // guards the following members; never held while waiting
    std::shared_future<QString> m_name; // as requested; known when the settings file has been read
    std::future<std::optional<Destination>> m_destination;
    std::future<std::unique_ptr<PpdDocument>> m_ppd;
    QString m_queue; // of the destination that was taken
};

} // namespace host
