// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace host {

// Polls the state of a job on a worker thread until the job has ended: every second at first, later every
// five seconds, with one request each time. If the server does not respond, the query is repeated; if the
// server no longer has the job, polling ends.
class JobFollower : public QObject
{
    Q_OBJECT
public:
    // Called on a worker thread; blocks.
    using Query = std::function<JobStatus()>;

    explicit JobFollower(QObject *parent = nullptr);
    void follow(Query query);
    void stop();
    // Polls now, for example after an action on the job.
    void askSoon();
    bool isFollowing() const { return m_query != nullptr; }

Q_SIGNALS:
    void changed(const host::JobStatus &status);

private:
    void ask();
    void answered(int round, const JobStatus &status);

    QTimer m_next;
    Query m_query;
    int m_asked = 0;
    int m_round = 0; // of follow(); responses of an earlier round are discarded
};

} // namespace host
