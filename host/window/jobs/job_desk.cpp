// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/job_desk.h"

#include "host/window/jobs/desktop_notice.h"
#include "host/window/jobs/earlier_jobs.h"
#include "host/window/jobs/result_page.h"
#include "host/window/waiting/waiting_page.h"

#include <QWidget>

#include <utility>

namespace host {

JobDesk::JobDesk(PrintSystem &system, WaitingPage *waiting, ResultPage *result, MessageQueue *messages,
                 QWidget *dialog)
    : QObject(dialog), m_system(system), m_dialog(dialog), m_waiting(waiting), m_result(result),
      m_messages(messages), m_sender(system, this), m_follower(new JobFollower(this))
{
    connectSender();
    connectResult();
}

void JobDesk::connectSender()
{
    connect(&m_sender, &JobSender::submitting, this, [this] {
        m_waiting->setTask(tr("Sending the document to the print server…"), tr("Ca&ncel Printing"));
    });
    connect(&m_sender, &JobSender::progressed, m_waiting, &WaitingPage::setProgress);
    connect(&m_sender, &JobSender::ended, this, &JobDesk::take);
}

void JobDesk::connectResult()
{
    connect(m_follower, &JobFollower::changed, this, &JobDesk::noteStatus);
    connect(m_result, &ResultPage::actionWanted, this, &JobDesk::change);
}

void JobDesk::report(MessageQueue::Subject subject, const PrintError &error)
{
    m_messages->tell(subject, {StatusGlyph::Kind::Error, error.message, {}, {}});
}

void JobDesk::checkDocuments(const QStringList &paths)
{
    m_checking.start(
        this,
        [paths] {
            PrintError error;
            for (const QString &path : paths) {
                if (path != QLatin1String("-") && !isStream(path) && !openDocument(path, &error))
                    break;
            }
            return error;
        },
        [this](const PrintError &error) {
            if (error)
                report(MessageQueue::Subject::Document, error);
        });
}

void JobDesk::send(const JobSender::Order &order, const QString &documents)
{
    m_destination = order.request.destination;
    m_documents = documents;
    if (!m_sender.send(order))
        return;
    m_waiting->setTask(tr("Reading the document…"), tr("Ca&ncel Printing"));
    m_sender.tellProgress();
    if (m_sender.isSending()) // otherwise a signal has arrived meanwhile
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
    if (!isRejected) {
        moveToEarlierJobs();
        m_submission = submission;
        m_submissionDestination = m_destination;
    }
    if (m_isLeaving)
        Q_EMIT left(!isRejected);
    m_sender.releaseSignals();
    if (m_isLeaving)
        return;
    if (isRejected) {
        Q_EMIT rejected();
        report(MessageQueue::Subject::Outcome, submission.error);
    } else {
        showResult();
    }
}

// Adds the current job to the earlier jobs.
void JobDesk::moveToEarlierJobs()
{
    m_follower->stop();
    m_change.drop();
    m_isAttentionNotified = false;
    if (!m_submission || !m_submission->isAccepted())
        return;
    if (!m_earlier) {
        m_earlier = new EarlierJobs(this);
        connect(m_earlier, &EarlierJobs::changed, this,
                [this] { m_result->showEarlier(m_earlier->lines()); });
        connect(m_earlier, &EarlierJobs::ended, this, &JobDesk::notifyIfInactive);
    }
    m_earlier->add(m_submission->job.id, m_submission->job.status, statusQuery());
}

void JobDesk::showResult()
{
    m_result->showSubmission(m_submissionDestination.displayName(), m_documents, *m_submission);
    if (m_submission->isAccepted() && !m_submission->job.status.isFinal())
        m_follower->follow(statusQuery());
    m_result->showEarlier(m_earlier ? m_earlier->lines() : QStringList());
    Q_EMIT sent();
}

JobFollower::Query JobDesk::statusQuery() const
{
    return [&system = m_system, destination = m_submissionDestination, id = m_submission->job.id] {
        return system.jobStatus(destination, id);
    };
}

void JobDesk::noteStatus(const JobStatus &status)
{
    if (status.state != JobStatus::State::Unknown)
        m_submission->job.status = status;
    m_result->showStatus(status);
    if (status.isFinal())
        Q_EMIT ended();
    const bool isNews = status.isFinal() || status.needsAttention();
    if (!isNews)
        m_isAttentionNotified = false;
    else if (!std::exchange(m_isAttentionNotified, !status.isFinal()))
        notifyIfInactive(m_result->text(), status);
}

// Notifies the user that a job has ended or needs attention, if the dialog is not the active window.
void JobDesk::notifyIfInactive(const QString &text, const JobStatus &status)
{
    if (!m_dialog->isActiveWindow())
        notifyDesktop(m_dialog->windowTitle(), text, status.state != JobStatus::State::Completed);
}

// Holds, releases or cancels the job. Ignored while another change is in progress.
void JobDesk::change(JobAction action)
{
    if (m_change.isPending())
        return;
    m_change.start(
        this,
        [&system = m_system, destination = m_submissionDestination, id = m_submission->job.id, action] {
            PrintError error;
            system.changeJob(destination, id, action, &error);
            return error;
        },
        [this](const PrintError &error) {
            m_result->showProblem(error.message);
            m_follower->askSoon();
        });
}

} // namespace host
