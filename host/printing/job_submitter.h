// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ipp_query.h"
#include "host/printing/job.h"

#include <optional>

namespace host {

// Sends one job to the print server: asks the queue, makes the job, sends the documents, reads the job back.
// Lives for one submission. When something fails half way the job is cancelled, so that nothing half-made
// stays in the queue.
class JobSubmitter
{
public:
    explicit JobSubmitter(const JobRequest &request);

    std::optional<SubmittedJob> submit(PrintError *error);

private:
    // False with an error when the queue does not take this job.
    bool checkQueue(PrintError *error);
    bool chooseFormats(const QStringList &supported, PrintError *error);
    int createJob(PrintError *error);
    bool sendDocument(int jobId, qsizetype index, PrintError *error);
    QStringList readBack(int jobId) const;
    // Preferences that the server adds to every job by itself.
    void dropServerDefaults();

    const JobRequest &m_request;
    QList<JobOption> m_options;
    QueueFacts m_queue;
    QByteArray m_printerUri;
    QList<QByteArray> m_formats; // of each document
};

// The state of a job as the server tells it; state Unknown when it does not answer.
JobStatus queryJobStatus(const QByteArray &printerUri, int jobId);

} // namespace host
