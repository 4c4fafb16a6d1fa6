// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/job_follower.h"
#include "host/window/jobs/job_sender.h"
#include "host/window/messages/message_queue.h"

#include <QObject>
#include <QString>

#include <optional>

class QWidget;

namespace host {

class EarlierJobs;
class ResultPage;
class WaitingPage;

// Sends the jobs of a dialog, one at a time. Shows the progress on the waiting page until the print server
// has the job, and then the state of the job on the result page; reports problems in the dialog's messages.
// Follows earlier jobs until they end. Owned by the dialog, as are the messages and the pages, which the
// dialog shows. The print system is borrowed and outlives this object.
class JobDesk : public QObject
{
    Q_OBJECT
public:
    JobDesk(PrintSystem &system, WaitingPage *waiting, ResultPage *result, MessageQueue *messages,
            QWidget *dialog);

    // Checks on a worker thread whether the documents can be opened, while the user chooses settings, and
    // reports the first one that cannot. Does not open streams, which can be read only once.
    void checkDocuments(const QStringList &paths);

    // Sends a job. Waits for a nearby server, 50 ms at most. `documents` contains the names of the documents
    // for display; may be empty.
    void send(const JobSender::Order &order, const QString &documents);
    bool isSending() const { return m_sender.isSending(); }
    bool isCancelled() const { return m_sender.isCancelled(); }
    // Cancels the job that is being sent. False if there is none.
    bool stop();
    // Cancels the job that is being sent when the dialog is closed; left() follows. True if there is none.
    bool leave();
    // The last job that was accepted, or may have been; null before the first. A job that was rejected or
    // canceled while it was sent does not replace an earlier one.
    const std::optional<Submission> &submission() const { return m_submission; }

Q_SIGNALS:
    // Sending takes noticeably long.
    void delayed();
    // The server has rejected the job; the reason is reported.
    void rejected();
    // The server has the job, or may have it.
    void sent();
    // The job that was being sent when the dialog was closed has ended; it is `kept` if it was not canceled.
    void left(bool kept);
    // The state of the job is final.
    void ended();

private:
    void connectSender();
    void connectResult();
    void report(MessageQueue::Subject subject, const PrintError &error);
    void take(const Submission &submission);
    void moveToEarlierJobs();
    void showResult();
    void noteStatus(const JobStatus &status);
    void notifyIfInactive(const QString &text, const JobStatus &status);
    void change(JobAction action);
    JobFollower::Query statusQuery() const;

    PrintSystem &m_system;
    QWidget *m_dialog;
    WaitingPage *m_waiting;
    ResultPage *m_result;
    MessageQueue *m_messages;
    JobSender m_sender;
    JobFollower *m_follower;
    EarlierJobs *m_earlier = nullptr; // null until there is one
    Destination m_destination;        // of the job that is being sent
    QString m_documents;              // their names for display
    std::optional<Submission> m_submission;
    Destination m_submissionDestination;
    platform::Awaited<PrintError> m_checking;
    platform::Awaited<PrintError> m_change;
    bool m_isAttentionNotified = false; // whether the user was notified that the job needs attention
    bool m_isLeaving = false;
};

} // namespace host
