// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "device/dnssd.h"

#include <QDeadlineTimer>

#include <chrono>
#include <functional>

// Questions to the Bonjour daemon.
namespace bonjour {

// For one resolution as a whole: reaching the daemon, and the wait for its reply.
constexpr std::chrono::milliseconds replyBudget{5000};

enum class Progress { Pending, Replied, Failed };

// Runs `process` each time the descriptor is readable until it replied or failed or the deadline has passed.
// Any descriptor number will do. True when it replied.
bool waitForReply(int descriptor, const QDeadlineTimer &deadline, const std::function<Progress()> &process);

// Looks up where a service instance runs and gives the daemon's first answer, which may be an error, to
// `reply` before it returns, on the calling thread; the reference that `reply` gets is null. `reply` is not
// called when the daemon is away or silent for the length of the budget. The daemon's library may wait far
// longer than that, and for ever for a silent bus: it is called on a worker thread, and is left
// to itself when the time is over. In a build without that library `reply` is never called.
void resolveService(const char *name, const char *type, const char *domain, DNSServiceResolveReply reply,
                    void *context);

} // namespace bonjour
