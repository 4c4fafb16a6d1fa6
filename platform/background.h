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

// Keeps a thread responsive while it waits for blocking work on a worker thread. A dialog may install a
// waiter for its thread with Scope. A thread without a waiter simply blocks.
class KELMAR_PLATFORM_EXPORT Waiter
{
public:
    virtual ~Waiter();
    // Whether the user has stopped the current wait. Calls made now fail without being started.
    virtual bool isGivenUp() const = 0;
    // Processes the thread's events until `ended()` returns true (result true) or the user stops waiting
    // (result false). `wake()` is called on this thread when `ended` may have changed.
    virtual bool wait(const std::function<bool()> &ended) = 0;
    // Makes wait() evaluate `ended` again. May be called from any thread.
    virtual void wake() = 0;

    struct Installed; // the state of one scope

    // Installs a waiter for the current thread for the lifetime of the scope. Scopes nest. Work that ends
    // after the scope does not use the waiter, which is released and destroyed on this thread.
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

// Runs blocking work, such as name look-ups and requests to the print server or a device. All worker threads
// are created here, except that of confined processes. Abandoned work continues in the background, so work
// must own all data that it uses, by value or by shared pointer.
class KELMAR_PLATFORM_EXPORT Background
{
public:
    // Runs `work` on a worker thread. Returns true when it has ended, false when the user has stopped
    // waiting. On a thread without a waiter, `work` runs on the calling thread. Exceptions of `work` are
    // rethrown here.
    static bool call(std::function<void()> work);
    // For work that may never return: always runs on a worker thread, and is also abandoned when it has not
    // ended within `limit`.
    static bool call(std::function<void()> work, std::chrono::milliseconds limit);
    // Whether the user has stopped the wait of this thread.
    static bool isGivenUp();
    // Runs `work` on a worker thread and returns at once. When it has ended, the event loop of the calling
    // thread calls `done`, unless `receiver` has been destroyed. `work` must not throw.
    static void start(std::function<void()> work, QObject *receiver, std::function<void()> done);
    // Whether work is running on any thread. If so, the program must not run its static destructors when it
    // exits.
    static bool isUnderWay();
};

// Returns the result of `work`. Null if the user stopped waiting, or if the work exceeded the time limit,
// which can be passed as the second argument.
template <typename Work, typename... Limit>
std::optional<std::invoke_result_t<Work>> callOnWorker(Work work, Limit... limit)
{
    auto result = std::make_shared<std::optional<std::invoke_result_t<Work>>>();
    if (!Background::call([result, work = std::move(work)]() mutable { result->emplace(work()); }, limit...))
        return std::nullopt;
    return std::move(*result);
}

// Passes the result of `work` to `done` on the calling thread, unless `receiver` has been destroyed.
template <typename Work, typename Done>
void startOnWorker(QObject *receiver, Work work, Done done)
{
    auto result = std::make_shared<std::optional<std::invoke_result_t<Work>>>();
    auto shared = std::make_shared<Work>(std::move(work));
    Background::start([result, shared] { result->emplace((*shared)()); }, receiver,
                      [result, done = std::move(done)]() mutable { done(std::move(**result)); });
}

} // namespace platform
