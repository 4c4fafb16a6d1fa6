// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace host {

// Defers the signals that end a program (SIGINT, SIGTERM, SIGHUP) during the lifetime of an object, so that
// an incomplete job can be canceled and reported first. When the last object is destroyed, a deferred signal
// ends the program as usual. A second signal ends it immediately. Ignored signals remain ignored. Created on
// the main thread.
class HeldSignals
{
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals &) = delete;
    HeldSignals &operator=(const HeldSignals &) = delete;

    // Whether a signal is pending. May be called on any thread.
    static bool isPending();
};

} // namespace host
