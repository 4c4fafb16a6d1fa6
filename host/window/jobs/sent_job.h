// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job_follower.h"
#include "host/printing/print_system.h"
#include "platform/awaited.h"

#include <QObject>
#include <QStringList>

#include <optional>

namespace host {

class EarlierJobs;

// The job that a dialog has sent last: keeps up with the print server about it until it has ended, and has it
// changed there. What was sent before is followed on the side. Belongs to its window. The print system is
// borrowed and outlives it.
class SentJob : public QObject
{
    Q_OBJECT
public:
    SentJob(PrintSystem &system, QObject *parent);

    // Nil before there is one, and when it was not accepted nor may have been.
    const std::optional<Submission> &submission() const { return m_submission; }
    // Takes what has been sent to this destination, when there is none.
    void take(Destination destination, const Submission &submission);
    // Follows it, where it was accepted and has not ended.
    void follow();
    // There is none any more; it is followed as an earlier one.
    void setAside();
    // Lines about the earlier ones; empty where there are none.
    QStringList earlierLines() const;
    // Asks the server, one change at a time; another one is ignored meanwhile.
    void change(JobAction action);

Q_SIGNALS:
    void changed(const host::JobStatus &status);
    // After that: it has ended, or needs somebody and did not before. Whoever looks elsewhere is to be told.
    void newsCame(const host::JobStatus &status);
    void changeFailed(const QString &problem);
    void earlierChanged();
    // An earlier one has; `line` says so in words.
    void earlierEnded(const QString &line, const host::JobStatus &status);

private:
    void noteStatus(const JobStatus &status);
    JobFollower::Query statusQuery() const;

    PrintSystem &m_system;
    Destination m_destination;
    std::optional<Submission> m_submission;
    platform::Awaited<PrintError> m_change;
    bool m_wasTold = false; // that it needs somebody
    JobFollower *m_follower;
    EarlierJobs *m_earlier = nullptr; // made when there is one
};

} // namespace host
