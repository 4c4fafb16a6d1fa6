// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "platform/background.h"

#include <QMetaObject>
#include <QObject>
#include <QPointer>

#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace platform {

namespace {

std::atomic<int> worksUnderWay{0};

// Lets work wake the waiter of its caller. The waiter belongs to the caller's thread; the work only holds
// this object, which does nothing after the scope has ended.
class WakeHandle
{
public:
    explicit WakeHandle(Waiter *waiter) : m_waiter(waiter) {}
    void wake()
    {
        const std::lock_guard lock(m_mutex);
        if (m_waiter)
            m_waiter->wake();
    }
    void detach()
    {
        const std::lock_guard lock(m_mutex);
        m_waiter = nullptr;
    }

private:
    std::mutex m_mutex;
    Waiter *m_waiter; // guarded by the mutex
};

} // namespace

struct Waiter::Installed
{
    explicit Installed(std::shared_ptr<Waiter> installed)
        : waiter(std::move(installed)), wakeHandle(std::make_shared<WakeHandle>(waiter.get()))
    {
    }
    ~Installed() { wakeHandle->detach(); }
    Installed(const Installed &) = delete;
    Installed &operator=(const Installed &) = delete;
    static std::shared_ptr<Installed> &current()
    {
        thread_local std::shared_ptr<Installed> installed;
        return installed;
    }

    const std::shared_ptr<Waiter> waiter;
    const std::shared_ptr<WakeHandle> wakeHandle;
};

namespace {

// State shared by a caller and its work. Outlives a caller that stops waiting or returns at its time limit.
struct CallState
{
    std::mutex mutex;
    std::condition_variable change;
    std::atomic<bool> ended{false}; // changes while the mutex is locked
    std::exception_ptr thrown;      // written before `ended`
};

// Runs `work` on a new thread. `work` and everything it holds is destroyed before `afterwards` runs.
void runDetached(std::function<void()> work, std::function<void()> afterwards)
{
    ++worksUnderWay;
    std::thread([work = std::move(work), afterwards = std::move(afterwards)]() mutable {
        work();
        work = nullptr;
        afterwards();
        afterwards = nullptr;
        --worksUnderWay;
    }).detach();
}

// Runs `work` on a new thread; then calls `wake` there.
std::shared_ptr<CallState> startCall(std::function<void()> work, std::function<void()> wake)
{
    auto state = std::make_shared<CallState>();
    auto keepingException = [state, work = std::move(work)] {
        try {
            work();
        } catch (...) {
            state->thrown = std::current_exception();
        }
    };
    runDetached(std::move(keepingException), [state, wake = std::move(wake)] {
        {
            const std::lock_guard lock(state->mutex);
            state->ended = true;
            state->change.notify_all();
        }
        wake();
    });
    return state;
}

// The result of a call, whose work has ended or not. Throws the exception of the work.
bool resultOf(const CallState &state, bool ended)
{
    if (ended && state.thrown)
        std::rethrow_exception(state.thrown);
    return ended;
}

} // namespace

Waiter::~Waiter() = default;

Waiter::Scope::Scope(std::shared_ptr<Waiter> waiter)
    : m_previous(std::exchange(Installed::current(),
                               waiter ? std::make_shared<Installed>(std::move(waiter)) : nullptr))
{
}

Waiter::Scope::~Scope()
{
    Installed::current() = std::move(m_previous);
}

bool Background::call(std::function<void()> work)
{
    const std::shared_ptr<Waiter::Installed> installed = Waiter::Installed::current();
    if (!installed) {
        work();
        return true;
    }
    if (installed->waiter->isGivenUp())
        return false;
    const auto state =
        startCall(std::move(work), [wakeHandle = installed->wakeHandle] { wakeHandle->wake(); });
    return resultOf(*state, installed->waiter->wait([state] { return state->ended.load(); }));
}

bool Background::call(std::function<void()> work, std::chrono::milliseconds limit)
{
    if (isGivenUp())
        return false;
    const auto state = startCall(std::move(work), [] {});
    // On a worker thread if this thread must not block.
    const auto ended = callOnWorker([state, until = std::chrono::steady_clock::now() + limit] {
        std::unique_lock lock(state->mutex);
        return state->change.wait_until(lock, until, [&] { return state->ended.load(); });
    });
    return resultOf(*state, ended.value_or(false));
}

bool Background::isGivenUp()
{
    const std::shared_ptr<Waiter::Installed> installed = Waiter::Installed::current();
    return installed && installed->waiter->isGivenUp();
}

void Background::start(std::function<void()> work, QObject *receiver, std::function<void()> done)
{
    // The target of the event that reports the end of the work to this thread, on which alone it is known
    // whether the receiver still exists. Deleted only by that event: an earlier deleteLater() could delete it
    // before the event arrives, and an object owned by an event must not post an event when the event is
    // dropped at the end of the program.
    auto *target = new QObject;
    auto deliver = [target, receiver = QPointer<QObject>(receiver), done = std::move(done)] {
        target->deleteLater();
        if (receiver)
            done();
    };
    runDetached(std::move(work), [target, deliver = std::move(deliver)] {
        QMetaObject::invokeMethod(target, deliver, Qt::QueuedConnection);
    });
}

bool Background::isUnderWay()
{
    return worksUnderWay > 0;
}

} // namespace platform
