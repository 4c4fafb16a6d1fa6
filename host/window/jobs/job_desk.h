// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/window/jobs/job_sender.h"
#include "host/window/jobs/sent_job.h"

#include <QObject>
#include <QString>

#include <optional>

namespace host {

class ResultPage;
class WaitingPage;

// Sends what a dialog prints, and shows how it fares: on one page until the print server has it, on the other
// what becomes of it. Belongs to the dialog, as the pages do; the dialog brings them up. The print system is
// borrowed and outlives it.
class JobDesk : public QObject
{
    Q_OBJECT
public:
    JobDesk(PrintSystem &system, WaitingPage *waiting, ResultPage *result, QObject *parent);

    // Waits for a near server, 50 ms at most. `documents` are their names, for the user; may be empty.
    void send(const JobSender::Order &order, const QString &documents);
    bool isSending() const { return m_sender.isSending(); }
    bool isCancelled() const { return m_sender.isCancelled(); }
    // The user does not want to print after all. False when nothing is on its way.
    bool stop();
    // The same, and the user does not want to see how it ends. True when nothing is on its way any more;
    // left() comes else.
    bool leave();
    // What became of the job; nil before there is one, and when it was not accepted.
    const std::optional<Submission> &submission() const { return m_job.submission(); }
    // There is to be another job; this one is followed on the side.
    void setAside() { m_job.setAside(); }

Q_SIGNALS:
    // A job is on its way, and it takes its time.
    void delayed();
    void rejected(const host::PrintError &error);
    // The server has the job, or may have it.
    void sent();
    // Nobody looks any more; a job that was not undone is `kept`.
    void left(bool kept);
    // The job will not change any more.
    void ended();
    // Whoever looks elsewhere is to be told this of a job.
    void newsCame(const QString &text, const host::JobStatus &status);

private:
    void connectSender();
    void connectJob();
    void take(const Submission &submission);
    void showResult();

    WaitingPage *m_waiting;
    ResultPage *m_result;
    JobSender m_sender;
    SentJob m_job;
    Destination m_printer;
    QString m_documents; // their names
    bool m_isLeaving = false;
};

} // namespace host
