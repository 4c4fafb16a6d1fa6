// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ipp_query.h"
#include "host/printing/job.h"
#include "host/printing/job_lookup.h"

namespace host {

// Sends one job to the print server: asks the queue, makes the job, sends the documents, reads the job back.
// Lives for one submission; blocks. Nothing is ever sent twice: where an answer is lost, the job is looked
// for, and one that is not whole is cancelled.
class JobSubmitter
{
public:
    // All of it borrowed.
    JobSubmitter(const JobRequest &request, const SubmissionWatch &watch, LoginKeeper *login);

    Submission submit();

private:
    // False with an error when the queue does not take this job.
    bool checkQueue(PrintError *error);
    // The one way in which documents are told to the server, or null with an error.
    std::optional<QByteArray> formatOf(const Document &document, PrintError *error) const;
    // Options that say what the documents are, and preferences that the server adds to every job by itself.
    void takeOptions();
    bool createJob(PrintError *error);
    // From now on the server is asked what became of the job, for a limited time.
    void limitLookup();
    bool sendDocument(qsizetype index, PrintError *error);
    IppPointer documentRequest(qsizetype index) const;
    Submission kept();
    Submission accepted(JobOnServer found) const;
    Submission concluded(const PrintError &why);
    // Ends a job that is not whole.
    Submission cancelled(const PrintError &why, const JobOnServer &found);
    // Ends a job that its user does not want any more, however much of it has arrived.
    Submission withdrawn(const JobOnServer &found);
    Submission rejected(const PrintError &why) const;
    Submission unknown(const PrintError &why) const;
    // A job without its documents may be there, which is neither found nor cancelled.
    Submission leftOver(const PrintError &why) const;
    bool isWhole(const JobOnServer &job) const;
    bool isCancelled() const;

    const JobRequest &m_request;
    const SubmissionWatch &m_watch;
    LoginKeeper *m_login;
    QList<JobOption> m_options;
    QueueFacts m_queue;
    QByteArray m_printerUri;
    QByteArray m_resource;
    QByteArray m_forcedFormat;
    QList<QByteArray> m_formats; // of each document
    QByteArray m_token;          // marks the job as ours
    ServerConnection m_server;
    JobLookup m_lookup;

    int m_id = 0;
    qint64 m_total = 0; // bytes of all documents
    qint64 m_sent = 0;
    qint64 m_kilobytes = 0;    // of the documents sent whole, counted as the server does
    bool m_mayExist = false;   // the server may have made the job
    bool m_mayPrint = false;   // a document may have arrived
    bool m_mayBeWhole = false; // all of them may have
    bool m_wasSilent = false;  // the server did not answer
};

} // namespace host
