// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ipp_query.h"
#include "host/printing/job.h"
#include "host/printing/job_lookup.h"

namespace host {

// Submits one job to the print server: queries the queue, creates the job, sends the documents, reads the job
// back. Used for one submission; blocks. Nothing is sent twice: if a response is lost, the job is looked up,
// and an incomplete job is canceled.
class JobSubmitter
{
public:
    // All arguments are borrowed.
    JobSubmitter(const JobRequest &request, const SubmissionWatch &watch, LoginKeeper *login);

    Submission submit();

private:
    // False with an error if the queue does not accept this job.
    bool checkQueue(PrintError *error);
    // The format in which a document is sent to the server; null with an error.
    std::optional<QByteArray> formatOf(const Document &document, PrintError *error) const;
    // Removes options that describe the documents, and preferences that the server adds to each job.
    void takeOptions();
    bool createJob(PrintError *error);
    // Sets a time limit for all queries about the outcome.
    void limitLookup();
    bool sendDocument(qsizetype index, PrintError *error);
    IppPointer documentRequest(qsizetype index) const;
    Submission kept();
    Submission accepted(JobOnServer found) const;
    Submission concluded(const PrintError &why);
    // Cancels an incomplete job.
    Submission cancelled(const PrintError &why, const JobOnServer &found);
    // Cancels a job on the user's request, even if it has arrived completely.
    Submission withdrawn(const JobOnServer &found);
    Submission rejected(const PrintError &why) const;
    Submission unknown(const PrintError &why) const;
    // The outcome if a job without documents may exist, but could neither be found nor canceled.
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
    QList<QByteArray> m_formats; // one per document
    QByteArray m_token;          // identifies the job
    ServerConnection m_server;
    JobLookup m_lookup;

    int m_id = 0;
    qint64 m_total = 0; // bytes of all documents
    qint64 m_sent = 0;
    qint64 m_kilobytes = 0;    // of the completely sent documents, counted like the server does
    bool m_mayExist = false;   // the server may have created the job
    bool m_mayPrint = false;   // a document may have arrived
    bool m_mayBeWhole = false; // all documents may have arrived
    bool m_wasSilent = false;  // the server did not respond
};

} // namespace host
