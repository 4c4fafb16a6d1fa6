// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <dns_sd.h>

#include <chrono>
#include <functional>

// The wait for a reply of the Bonjour daemon, in the calling thread.
namespace bonjour {

// For one resolution, from the start of the wait to the reply, whatever the number of reads in between.
constexpr std::chrono::milliseconds replyBudget{5000};

enum class Progress { Pending, Replied, Failed };

// Runs `process` each time the descriptor is readable until it replied or failed or the budget is used up.
// Any descriptor number will do. True when it replied.
bool waitForReply(int descriptor, std::chrono::milliseconds budget, const std::function<Progress()> &process);

// Looks up where a service instance runs and gives the daemon's first answer, which may be an error, to
// `reply` before it returns. `reply` is not called when the daemon is away or silent for the length of the
// budget. What `reply` throws passes on to the caller.
void resolveService(const char *name, const char *type, const char *domain, DNSServiceResolveReply reply,
                    void *context);

} // namespace bonjour
