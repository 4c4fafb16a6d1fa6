// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace host {

// While one lives, the signals that end a program (SIGINT, SIGTERM, SIGHUP) are noted instead, so that a job
// that is half sent can be cancelled and told about first. When the last one goes, a noted signal ends the
// program as it would have done. A second signal ends it at once. One that the program was told to ignore
// stays ignored. Made on the main thread.
class HeldSignals
{
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals &) = delete;
    HeldSignals &operator=(const HeldSignals &) = delete;

    // Whether a signal waits. On any thread.
    static bool isPending();
};

} // namespace host
