// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace host {

// Polls the state of a job on a worker thread until the job has ended: every second at
// first, every five seconds when the job takes longer, one request each time. A server that does not answer
// is asked again; one that does not know the job any more is not.
class JobFollower : public QObject
{
    Q_OBJECT
public:
    // Called on a thread of its own; blocks.
    using Query = std::function<JobStatus()>;

    explicit JobFollower(QObject *parent = nullptr);
    void follow(Query query);
    void stop();
    // Asks now, as after something has been done to the job.
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
    int m_round = 0; // of follow(); answers to an earlier one are dropped
};

} // namespace host
