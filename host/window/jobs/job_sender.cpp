// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/job_sender.h"

#include "host/preview/page_counter.h"
#include "host/printing/held_signals.h"
#include "host/printing/later_writes.h"

#include <atomic>

namespace host {

namespace {

// The thread waits this long for a print server, which the user does not notice. The response of a nearby
// server is then shown at once.
constexpr std::chrono::milliseconds nearServer(50);
constexpr std::chrono::milliseconds betweenProgress(100);

} // namespace

// State shared by the work and the sender.
struct JobSender::Sending
{
    std::atomic<qint64> sent{0};
    std::atomic<qint64> total{0}; // bytes
    std::atomic<bool> isCancelled{false};
    // Until the server is contacted there is no job to cancel: the work is abandoned, even while it reads a
    // document.
    enum class Phase { Reading, Submitting, Dropped };
    std::atomic<Phase> phase{Phase::Reading};
    bool isSubmittingEmitted = false;
    bool enter(Phase next)
    {
        Phase reading = Phase::Reading;
        return phase.compare_exchange_strong(reading, next);
    }
    Order order;
};

JobSender::JobSender(PrintSystem &system, QObject *parent) : QObject(parent), m_system(system)
{
    connect(&m_progressTimer, &QTimer::timeout, this, &JobSender::tellProgress);
}

JobSender::~JobSender() = default;

bool JobSender::send(Order order)
{
    m_held = std::make_unique<HeldSignals>();
    m_sending = std::make_shared<Sending>();
    m_sending->order = std::move(order);
    auto work = [&system = m_system, sending = m_sending]() -> Submission {
        Submission failed;
        const Order &wanted = sending->order;
        const auto isDropped = [&] { return sending->phase == Sending::Phase::Dropped; };
        if (!wanted.documents->open(wanted.files, nullptr, &failed.error, isDropped))
            return failed;
        JobRequest request = wanted.request;
        request.documents = wanted.documents->documents();
        if (request.title.isEmpty())
            request.title = wanted.documents->title();
        if (!wanted.documentName.isEmpty())
            request.documents.first().name = wanted.documentName;
        PageVerdict verdict; // owns what is sent
        if (wanted.pages) {
            verdict = checkPages(PageTools::installed(), request.documents, *wanted.pages, isDropped);
            request.documents = verdict.documents;
        }
        if (!verdict.message.isNull())
            failed.error = {PrintError::Kind::BadValue, verdict.message};
        if (failed.error || !sending->enter(Sending::Phase::Submitting))
            return failed;
        const auto progress = [&](qint64 sent, qint64 total) {
            sending->sent = sent;
            sending->total = total;
        };
        return system.submit(request, {progress, [&] { return sending->isCancelled.load(); }});
    };
    m_submitting.start(this, std::move(work), [this](const Submission &submission) { end(submission); });
    if (m_submitting.deliverWithin(nearServer))
        return false;
    m_progressTimer.start(betweenProgress);
    return true;
}

bool JobSender::isCancelled() const
{
    return m_sending && m_sending->isCancelled;
}

void JobSender::cancel()
{
    if (m_sending)
        m_sending->isCancelled = true;
}

void JobSender::tellProgress()
{
    if (!m_sending)
        return;
    if (m_sending->phase == Sending::Phase::Reading) {
        if (HeldSignals::isPending()) // there is no job to cancel first
            dropReading();
        return;
    }
    if (!std::exchange(m_sending->isSubmittingEmitted, true) && !m_sending->isCancelled)
        Q_EMIT submitting();
    Q_EMIT progressed(m_sending->sent, m_sending->total);
}

bool JobSender::dropReading()
{
    if (!m_sending || !m_sending->enter(Sending::Phase::Dropped))
        return false;
    m_submitting.drop();
    Submission dropped;
    dropped.outcome = Submission::Outcome::Rejected;
    dropped.error = {PrintError::Kind::Cancelled, tr("Printing was canceled.")};
    end(dropped);
    return true;
}

// Reports the outcome. The settings file is written later, since its file system may be slow.
void JobSender::end(const Submission &submission)
{
    m_progressTimer.stop();
    const auto sending = std::move(m_sending);
    if (submission.outcome != Submission::Outcome::Rejected)
        rememberUseLater(sending->order.request.destination.name(),
                         submission.isAccepted() ? sending->order.rememberUse : nullptr);
    Q_EMIT ended(submission);
}

void JobSender::releaseSignals()
{
    m_held.reset();
}

} // namespace host
