// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/export.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

class QObject;

namespace platform {

// How a thread that has to stay responsive passes the time while blocking work runs on a worker thread. A
// dialog may install one for its thread, with Scope; threads without one simply block.
class KELMAR_PLATFORM_EXPORT Waiter
{
public:
    virtual ~Waiter();
    // Whether the user has given up on what is being waited for: calls made now fail without being started.
    virtual bool isGivenUp() const = 0;
    // Keeps the thread's events going. Returns true as soon as `ended()` does, false when the user gives up
    // first. `wake()` is called, on this thread, when `ended` may have changed.
    virtual bool wait(const std::function<bool()> &ended) = 0;
    // Makes wait() look at `ended` again. Called from any thread.
    virtual void wake() = 0;

    struct Installed; // one scope's

    // Installs a waiter for the current thread while it lives. Scopes nest. Work that ends after the scope
    // wakes no one, and keeps nothing of the waiter: that is let go of, and destroyed, on this thread.
    class KELMAR_PLATFORM_EXPORT Scope
    {
    public:
        explicit Scope(std::shared_ptr<Waiter> waiter);
        ~Scope();
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;

    private:
        std::shared_ptr<Installed> m_previous;
    };
};

// Blocking work: requests to the print server or a device, name look-ups. The one place that makes threads.
// What is given up ends in the background, so work owns (by value or shared pointer) everything it touches.
class KELMAR_PLATFORM_EXPORT Background
{
public:
    // Runs `work` on a worker thread and returns true when it has ended, false when the user gave up. Without
    // a waiter on this thread it is called straight. What it throws comes out here.
    static bool call(std::function<void()> work);
    // For work that may never end: always runs it on a worker thread, and gives up on it as well when it has
    // not ended within `limit`.
    static bool call(std::function<void()> work, std::chrono::milliseconds limit);
    // Whether the user has given up on what this thread waits for.
    static bool isGivenUp();
    // Runs `work` on a worker thread and returns at once; `done` is called by the event loop of the calling
    // thread when it has ended, unless `receiver` is gone by then. `work` must not throw.
    static void start(std::function<void()> work, QObject *receiver, std::function<void()> done);
    // Whether anything is under way on any thread. A program that ends then must not run its static
    // destructors.
    static bool isUnderWay();
};

// The result of `work`; null when the user gave up waiting for it, or when it took longer than the limit that
// may follow.
template <typename Work, typename... Limit>
std::optional<std::invoke_result_t<Work>> callBeside(Work work, Limit... limit)
{
    auto result = std::make_shared<std::optional<std::invoke_result_t<Work>>>();
    if (!Background::call([result, work = std::move(work)]() mutable { result->emplace(work()); }, limit...))
        return std::nullopt;
    return std::move(*result);
}

// Hands the result of `work` to `done` on the calling thread, unless `receiver` is gone by then.
template <typename Work, typename Done>
void startBeside(QObject *receiver, Work work, Done done)
{
    auto result = std::make_shared<std::optional<std::invoke_result_t<Work>>>();
    auto shared = std::make_shared<Work>(std::move(work));
    Background::start([result, shared] { result->emplace((*shared)()); }, receiver,
                      [result, done = std::move(done)]() mutable { done(std::move(**result)); });
}

} // namespace platform
