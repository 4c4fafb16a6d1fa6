// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job_follower.h"

#include <QList>
#include <QObject>
#include <QStringList>

namespace host {

// The jobs that a dialog has sent before the job on its result page. Follows each job until it has ended.
class EarlierJobs : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    // `status` is the last known status; `query` requests it, as for a JobFollower.
    void add(int id, const JobStatus &status, const JobFollower::Query &query);
    // All jobs as text, such as "Jobs 14, 13: done": a line for each state, the latest job first.
    QStringList lines() const;

Q_SIGNALS:
    void changed();
    // A job has ended; `line` is a text about it.
    void ended(const QString &line, const host::JobStatus &status);

private:
    void update(int id, const JobStatus &status);

    struct Job
    {
        int id = 0;
        JobStatus status;
    };
    QList<Job> m_jobs; // the latest first
};

} // namespace host
