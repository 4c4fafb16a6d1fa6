// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/background.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <utility>

namespace platform {

// Delivers the result of work on a worker thread to one receiver. Only the most recently started work counts;
// results of earlier work are discarded. Used on one thread only, the thread of its context.
template <typename Result>
class Awaited
{
public:
    using Receiver = std::function<void(Result)>;

    // Runs `work` on a worker thread. The event loop of this thread, or deliverWithin(), calls `receiver`
    // once with the result, unless the context or this object has been destroyed. The work must own all data
    // that it uses.
    void start(QObject *context, std::function<Result()> work, Receiver receiver)
    {
        auto pending = std::make_shared<Pending>();
        pending->receiver = std::move(receiver);
        *m_latest = pending;
        Background::start(
            [pending, work = std::move(work)] {
                Result result = work();
                const std::lock_guard lock(pending->mutex);
                pending->result.emplace(std::move(result));
                pending->changed.notify_all();
            },
            context, [pending, latest = std::weak_ptr(m_latest)] { deliver(pending, latest.lock()); });
    }
    // Blocks until the result has been delivered, at most for this time. Returns true if the receiver was
    // called.
    bool deliverWithin(std::chrono::milliseconds time)
    {
        const std::shared_ptr<Pending> pending = *m_latest;
        if (!pending)
            return false;
        {
            std::unique_lock lock(pending->mutex);
            if (!pending->changed.wait_for(lock, time, [&] { return pending->result.has_value(); }))
                return false;
        }
        deliver(pending, m_latest);
        return true;
    }
    // Discards the result of the running work.
    void drop() { m_latest->reset(); }
    bool isPending() const { return *m_latest != nullptr; }

private:
    struct Pending
    {
        std::mutex mutex;
        std::condition_variable changed;
        std::optional<Result> result; // guarded by the mutex
        Receiver receiver;            // used on the awaiting thread only
    };
    static void deliver(const std::shared_ptr<Pending> &pending,
                        const std::shared_ptr<std::shared_ptr<Pending>> &latest)
    {
        if (!latest || *latest != pending)
            return;
        latest->reset();
        pending->receiver(std::move(*pending->result));
    }

    std::shared_ptr<std::shared_ptr<Pending>> m_latest = std::make_shared<std::shared_ptr<Pending>>();
};

} // namespace platform
