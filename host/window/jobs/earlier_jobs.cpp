// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/jobs/earlier_jobs.h"

#include <algorithm>

namespace host {

void EarlierJobs::add(int id, const JobStatus &status, const JobFollower::Query &query)
{
    m_jobs.prepend({id, status});
    if (status.isFinal())
        return;
    auto *follower = new JobFollower(this);
    connect(follower, &JobFollower::changed, this, [this, follower, id](const JobStatus &now) {
        if (now.isFinal())
            follower->deleteLater();
        update(id, now);
    });
    follower->follow(query);
}

void EarlierJobs::update(int id, const JobStatus &status)
{
    const auto job = std::find_if(m_jobs.begin(), m_jobs.end(), [id](const Job &j) { return j.id == id; });
    // Keep the last known status if the server does not respond.
    if (job == m_jobs.end() || status.state == JobStatus::State::Unknown)
        return;
    job->status = status;
    Q_EMIT changed();
    if (status.isFinal())
        Q_EMIT ended(tr("Job %1: %2").arg(id).arg(status.text()), status);
}

QStringList EarlierJobs::lines() const
{
    QStringList states;
    QList<QStringList> ids; // for each state
    for (const Job &job : m_jobs) {
        qsizetype at = states.indexOf(job.status.text());
        if (at < 0) {
            at = states.size();
            states.append(job.status.text());
            ids.append(QStringList());
        }
        ids[at].append(QString::number(job.id));
    }
    QStringList lines;
    for (qsizetype i = 0; i < states.size(); ++i)
        lines.append((ids.at(i).size() > 1 ? tr("Jobs %1: %2") : tr("Job %1: %2"))
                         .arg(ids.at(i).join(QStringLiteral(", ")), states.at(i)));
    return lines;
}

} // namespace host
