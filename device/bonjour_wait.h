// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "device/dnssd.h"

#include <QDeadlineTimer>

#include <chrono>
#include <functional>

// Queries to the Bonjour daemon.
namespace bonjour {

// Time limit for a complete resolution: connecting to the daemon, and waiting for its reply.
constexpr std::chrono::milliseconds replyBudget{5000};

enum class Progress { Pending, Replied, Failed };

// Calls `process` each time the descriptor is readable until it has replied or failed, or the deadline has
// passed. Works with any descriptor number. True if it has replied.
bool waitForReply(int descriptor, const QDeadlineTimer &deadline, const std::function<Progress()> &process);

// Resolves a service instance and passes the daemon's first answer, which may be an error, to `reply` before
// it returns, on the calling thread; the reference passed to `reply` is null. `reply` is not called if the
// daemon is not running or does not respond within the time limit. The daemon's library may wait much longer,
// or forever if the bus does not respond: it is called on a worker thread, which is abandoned when the time
// is over. In a build without that library `reply` is never called.
void resolveService(const char *name, const char *type, const char *domain, DNSServiceResolveReply reply,
                    void *context);

} // namespace bonjour
