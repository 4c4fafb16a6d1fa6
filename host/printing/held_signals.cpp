// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/held_signals.h"

#include <array>
#include <atomic>
#include <csignal>

namespace host {

namespace {

constexpr std::array<int, 3> held = {SIGINT, SIGTERM, SIGHUP};

std::atomic<int> pending{0}; // the signal's number
static_assert(std::atomic<int>::is_always_lock_free);
int scopes = 0;
std::array<struct sigaction, held.size()> before;

void recordSignal(int signal)
{
    pending = signal;
}

} // namespace

HeldSignals::HeldSignals()
{
    if (scopes++ > 0)
        return;
    pending = 0;
    struct sigaction action = {};
    action.sa_handler = recordSignal;
    action.sa_flags = SA_RESETHAND; // without restart, so that reading from a terminal ends
    for (size_t i = 0; i < held.size(); ++i) {
        sigaction(held[i], nullptr, &before[i]);
        if (before[i].sa_handler != SIG_IGN)
            sigaction(held[i], &action, nullptr);
    }
}

HeldSignals::~HeldSignals()
{
    if (--scopes > 0)
        return;
    for (size_t i = 0; i < held.size(); ++i)
        sigaction(held[i], &before[i], nullptr);
    if (const int signal = pending.exchange(0))
        raise(signal);
}

bool HeldSignals::isPending()
{
    return pending != 0;
}

} // namespace host
