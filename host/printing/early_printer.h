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

// The printer of the first dialog, asked for on a worker thread while the program still starts: its
// destination, and its PPD with the constraints. Each of the two is taken at most once. A request that fails
// leaves nothing: the caller then asks the print system itself, and gets the error in the user's language or
// the question for a login. Thread-safe. The worker owns what it touches: the object may go before the worker
// ends.
class EarlyPrinter
{
public:
    // Starts asking for this destination; where the name is empty, for the one used last, else the user's
    // default. Needs the names of organization and application, but no QCoreApplication.
    explicit EarlyPrinter(const QString &name);

    // The destination, where `name` is the one that was asked for. Blocks until the server has answered. Null
    // for another name, after a failure, and the second time.
    std::optional<Destination> takeDestination(const QString &name);
    // The PPD of the queue of takeDestination(), on the same terms.
    std::unique_ptr<PpdDocument> takePpd(const QString &queue);

private:
    struct Answer
    {
        QString name; // that was asked for
        std::optional<Destination> destination;
    };

    std::mutex m_mutex; // guards what follows
    std::future<Answer> m_answer;
    std::future<std::unique_ptr<PpdDocument>> m_ppd;
    QString m_queue; // of the destination that was taken
};

} // namespace host
