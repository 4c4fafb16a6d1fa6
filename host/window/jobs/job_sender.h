// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/documents.h"
#include "host/printing/page_settings.h"
#include "host/printing/print_system.h"
#include "platform/awaited.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace host {

class HeldSignals;

// Sends documents to the print server as a job, on a worker thread, and reports the progress. Sends
// nothing if nothing would be printed. Part of a JobDesk; sends one job at a time. The print system is
// borrowed and outlives this object. Signals that end the program are held during a submission, so that the
// job can be canceled first.
class JobSender : public QObject
{
    Q_OBJECT
public:
    struct Order
    {
        std::shared_ptr<DocumentList> documents; // used by the work until it has ended
        QStringList files;                       // opened by the work
        QString documentName;                    // of the only document; empty for the name of its file
        JobRequest request;                // documents, and the title if it is empty, are set from the files
        std::optional<PageSettings> pages; // to check and scale the pages; null for neither
        std::function<void()>
            rememberUse; // called on a worker thread when the job was accepted; may be empty
    };

    JobSender(PrintSystem &system, QObject *parent);
    ~JobSender() override;

    // Waits for a nearby server, 50 ms at most. True if the job is still being sent then.
    bool send(Order order);
    bool isSending() const { return m_sending != nullptr; }
    bool isCancelled() const;
    // True if the documents were still being read; nothing is sent then, and the submission has ended.
    bool dropReading();
    // Cancels the job on the server; ended() reports the outcome.
    void cancel();
    // Emits progressed() now; it is also emitted every 100 ms.
    void tellProgress();
    // Stops holding signals; a pending signal ends the program.
    void releaseSignals();

Q_SIGNALS:
    // The documents have been read, and the server is being contacted. Not emitted for a job that was already
    // canceled.
    void submitting();
    void progressed(qint64 sent, qint64 total); // bytes
    // Emitted once for each order, possibly before send() returns. Signals are held until the receiver
    // releases them.
    void ended(const host::Submission &submission);

private:
    struct Sending;
    void end(const Submission &submission);

    PrintSystem &m_system;
    std::shared_ptr<Sending> m_sending;  // null unless a job is being sent
    std::unique_ptr<HeldSignals> m_held; // while a job is being sent
    platform::Awaited<Submission> m_submitting;
    QTimer m_progressTimer;
};

} // namespace host
