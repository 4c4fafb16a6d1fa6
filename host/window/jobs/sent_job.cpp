// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/sent_job.h"

#include "host/window/jobs/earlier_jobs.h"

namespace host {

SentJob::SentJob(PrintSystem &system, QObject *parent)
    : QObject(parent), m_system(system), m_follower(new JobFollower(this))
{
    connect(m_follower, &JobFollower::changed, this, &SentJob::noteStatus);
}

void SentJob::take(Destination destination, const Submission &submission)
{
    m_destination = std::move(destination);
    m_submission = submission;
}

void SentJob::follow()
{
    if (m_submission->isAccepted() && !m_submission->job.status.isFinal())
        m_follower->follow(statusQuery());
}

JobFollower::Query SentJob::statusQuery() const
{
    return [&system = m_system, destination = m_destination, id = m_submission->job.id] {
        return system.jobStatus(destination, id);
    };
}

void SentJob::noteStatus(const JobStatus &status)
{
    if (status.state != JobStatus::State::Unknown)
        m_submission->job.status = status;
    Q_EMIT changed(status);
    const bool isNews = status.isFinal() || status.needsSomebody();
    if (!isNews)
        m_wasTold = false;
    else if (!std::exchange(m_wasTold, !status.isFinal()))
        Q_EMIT newsCame(status);
}

void SentJob::change(JobAction action)
{
    if (m_change.isPending())
        return;
    m_change.start(
        this,
        [&system = m_system, destination = m_destination, id = m_submission->job.id, action] {
            PrintError error;
            system.changeJob(destination, id, action, &error);
            return error;
        },
        [this](const PrintError &error) {
            if (error)
                Q_EMIT changeFailed(error.message);
            m_follower->askSoon();
        });
}

void SentJob::setAside()
{
    m_follower->stop();
    if (!m_earlier) {
        m_earlier = new EarlierJobs(this);
        connect(m_earlier, &EarlierJobs::changed, this, &SentJob::earlierChanged);
        connect(m_earlier, &EarlierJobs::ended, this, &SentJob::earlierEnded);
    }
    if (m_submission->isAccepted())
        m_earlier->add(m_submission->job.id, m_submission->job.status, statusQuery());
    m_change.drop();
    m_submission.reset();
    m_wasTold = false;
}

QStringList SentJob::earlierLines() const
{
    return m_earlier ? m_earlier->lines() : QStringList();
}

} // namespace host
