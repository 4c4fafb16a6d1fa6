// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/job_desk.h"

#include "host/window/jobs/result_page.h"
#include "host/window/waiting/waiting_page.h"

namespace host {

JobDesk::JobDesk(PrintSystem &system, WaitingPage *waiting, ResultPage *result, QObject *parent)
    : QObject(parent), m_waiting(waiting), m_result(result), m_sender(system, this), m_job(system, this)
{
    connectSender();
    connectJob();
}

void JobDesk::connectSender()
{
    connect(&m_sender, &JobSender::submitting, this, [this] {
        m_waiting->setTask(tr("Sending the document to the print server…"), tr("Ca&ncel Printing"));
    });
    connect(&m_sender, &JobSender::progressed, m_waiting, &WaitingPage::setProgress);
    connect(&m_sender, &JobSender::ended, this, &JobDesk::take);
}

void JobDesk::connectJob()
{
    connect(&m_job, &SentJob::changed, m_result, &ResultPage::showStatus);
    connect(&m_job, &SentJob::changed, this, [this](const JobStatus &status) {
        if (status.isFinal())
            Q_EMIT ended();
    });
    connect(&m_job, &SentJob::newsCame, this,
            [this](const JobStatus &status) { Q_EMIT newsCame(m_result->text(), status); });
    connect(&m_job, &SentJob::changeFailed, m_result, &ResultPage::showProblem);
    connect(&m_job, &SentJob::earlierChanged, this, [this] { m_result->showEarlier(m_job.earlierLines()); });
    connect(&m_job, &SentJob::earlierEnded, this, &JobDesk::newsCame);
    connect(m_result, &ResultPage::actionWanted, &m_job, &SentJob::change);
}

void JobDesk::send(const JobSender::Order &order, const QString &documents)
{
    m_printer = order.request.destination;
    m_documents = documents;
    if (!m_sender.send(order))
        return;
    m_waiting->setTask(tr("Reading the document…"), tr("Ca&ncel Printing"));
    m_sender.tellProgress();
    if (m_sender.isSending()) // else a signal has come meanwhile
        Q_EMIT delayed();
}

bool JobDesk::stop()
{
    if (m_sender.dropReading())
        return true;
    if (!m_sender.isSending())
        return false;
    m_sender.cancel();
    m_waiting->setCancelling(tr("Canceling the job…"));
    return true;
}

bool JobDesk::leave()
{
    if (!m_sender.isSending() || m_sender.dropReading())
        return true;
    m_isLeaving = true;
    (void)stop();
    return false;
}

void JobDesk::take(const Submission &submission)
{
    const bool isRejected = submission.outcome == Submission::Outcome::Rejected;
    if (!isRejected)
        m_job.take(m_printer, submission);
    if (m_isLeaving) {
        Q_EMIT left(!isRejected);
        m_sender.releaseSignals();
        return;
    }
    m_sender.releaseSignals();
    if (isRejected)
        Q_EMIT rejected(submission.error);
    else
        showResult();
}

void JobDesk::showResult()
{
    m_result->showSubmission(m_printer.displayName(), m_documents, *m_job.submission());
    m_job.follow();
    m_result->showEarlier(m_job.earlierLines());
    Q_EMIT sent();
}

} // namespace host
