// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/later_writes.h"

#include "host/printing/destination.h"
#include "platform/background.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace host {

namespace {

struct Writes
{
    std::mutex mutex; // guards all members
    std::condition_variable ended;
    std::deque<std::function<void()>> waiting;
    bool isWriting = false;
};

// Never destroyed, since a blocked write may outlast the program's static objects.
Writes &writes()
{
    static auto *all = new Writes;
    return *all;
}

// In order, so that the last value of a setting is the one that remains.
void writeAll()
{
    std::unique_lock lock(writes().mutex);
    while (!writes().waiting.empty()) {
        const std::function<void()> write = std::move(writes().waiting.front());
        writes().waiting.pop_front();
        lock.unlock();
        write();
        lock.lock();
    }
    writes().isWriting = false;
    writes().ended.notify_all();
}

} // namespace

void writeLater(std::function<void()> write)
{
    {
        const std::lock_guard lock(writes().mutex);
        writes().waiting.push_back(std::move(write));
        if (std::exchange(writes().isWriting, true))
            return;
    }
    platform::Background::start(writeAll, nullptr, {});
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
    writes().ended.wait_for(lock, limit, [] { return !writes().isWriting; });
}

} // namespace host
