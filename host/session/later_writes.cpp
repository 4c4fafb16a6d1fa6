// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/later_writes.h"

#include "host/printing/destination.h"
#include "platform/background.h"

#include <condition_variable>
#include <mutex>

namespace host {

namespace {

struct Writes
{
    std::mutex order; // held by the one that is written
    std::mutex mutex;
    std::condition_variable ended;
    int underWay = 0; // guarded
};

// Never destroyed: a write that hangs may outlast the program's static objects.
Writes &writes()
{
    static auto *all = new Writes;
    return *all;
}

} // namespace

void writeLater(std::function<void()> write)
{
    {
        const std::lock_guard lock(writes().mutex);
        ++writes().underWay;
    }
    platform::Background::start(
        [write = std::move(write)] {
            {
                const std::lock_guard lock(writes().order);
                write();
            }
            const std::lock_guard lock(writes().mutex);
            --writes().underWay;
            writes().ended.notify_all();
        },
        nullptr, {});
}

void rememberUseLater(const QString &printer, const std::function<void()> &settings)
{
    writeLater([printer, settings] {
        RememberedPrinter().setName(printer);
        if (settings)
            settings();
    });
}

void finishWrites(std::chrono::milliseconds limit)
{
    std::unique_lock lock(writes().mutex);
    writes().ended.wait_for(lock, limit, [] { return writes().underWay == 0; });
}

} // namespace host
