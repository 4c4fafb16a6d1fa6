// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/job_follower.h"
#include "host/window/jobs/job_sender.h"

#include <QObject>
#include <QString>

#include <optional>

class QWidget;

namespace host {

class EarlierJobs;
class ResultPage;
class WaitingPage;

// The jobs that a dialog prints, one after another: sends each, shows its progress on one page until the
// print server has it, and on the other what becomes of it. Jobs sent before the last one are followed until
// they end. Belongs to the dialog, as the pages do; the dialog brings them up. The print system is borrowed
// and outlives it.
class JobDesk : public QObject
{
    Q_OBJECT
public:
    JobDesk(PrintSystem &system, WaitingPage *waiting, ResultPage *result, QWidget *dialog);

    // Waits for a near server, 50 ms at most. `documents` are their names, for the user; may be empty.
    void send(const JobSender::Order &order, const QString &documents);
    bool isSending() const { return m_sender.isSending(); }
    bool isCancelled() const { return m_sender.isCancelled(); }
    // Cancels what is being sent. False when nothing is.
    bool stop();
    // The same for a dialog that is closed. True when nothing is being sent any more; else left() follows.
    bool leave();
    // The last job that was accepted, or may have been; null before there is one. A job that was rejected or
    // cancelled while it was sent does not take the place of one before it.
    const std::optional<Submission> &submission() const { return m_submission; }

Q_SIGNALS:
    // Sending takes longer than a user notices.
    void delayed();
    void rejected(const host::PrintError &error);
    // The server has the job, or may have it.
    void sent();
    // The end of a job that was being sent when the dialog was closed; one that was not undone is `kept`.
    void left(bool kept);
    // The job will not change any more.
    void ended();

private:
    void connectSender();
    void connectResult();
    void take(const Submission &submission);
    void setAside();
    void showResult();
    void noteStatus(const JobStatus &status);
    void tellElsewhere(const QString &text, const JobStatus &status);
    void change(JobAction action);
    JobFollower::Query statusQuery() const;

    PrintSystem &m_system;
    QWidget *m_dialog;
    WaitingPage *m_waiting;
    ResultPage *m_result;
    JobSender m_sender;
    JobFollower *m_follower;
    EarlierJobs *m_earlier = nullptr; // null until there is one
    Destination m_destination;        // of what is being sent
    QString m_documents;              // their names
    std::optional<Submission> m_submission;
    Destination m_submissionDestination;
    platform::Awaited<PrintError> m_change;
    bool m_wasTold = false; // that the job needs the user
    bool m_isLeaving = false;
};

} // namespace host
