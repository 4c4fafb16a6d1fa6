// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/documents.h"
#include "host/printing/print_system.h"
#include "platform/awaited.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace host {

class HeldSignals;

// Sends documents to the print server as a job, on a worker thread, and reports its progress.
// Belongs to its window and sends one job at a time. The print system is borrowed and outlives it. The
// signals that end the program are held while a job is on its way, so that it can be cancelled first.
class JobSender : public QObject
{
    Q_OBJECT
public:
    struct Order
    {
        std::shared_ptr<DocumentList> documents; // the work's until it has ended
        QStringList files;                       // to be opened in it
        QString documentName;                    // of the only document; empty for what its file is called
        JobRequest request;                      // its documents, and an empty title, come from the files
        std::function<void()>
            rememberUse; // called on a worker thread once the job has been accepted; may be empty
    };

    JobSender(PrintSystem &system, QObject *parent);
    ~JobSender() override;

    // Waits for a near server, 50 ms at most. True when the job is still on its way then.
    bool send(Order order);
    bool isSending() const { return m_sending != nullptr; }
    bool isCancelled() const;
    // True when the documents were still being read; then nothing is sent, and it has ended.
    bool dropReading();
    // Has the server undo what it has of the job; how that went is what it ends with.
    void cancel();
    // Says at once what is also said every 100 ms.
    void tellProgress();
    // Signals are no longer held; one that came ends the program.
    void releaseSignals();

Q_SIGNALS:
    // The documents have been read, and the server is asked now. Not for a job that is cancelled already.
    void submitting();
    void progressed(qint64 sent, qint64 total); // bytes
    // Once for each order, also before send() returns. Signals are held until the receiver releases them.
    void ended(const host::Submission &submission);

private:
    struct Sending;
    void end(const Submission &submission);

    PrintSystem &m_system;
    std::shared_ptr<Sending> m_sending;  // null unless a job is on its way
    std::unique_ptr<HeldSignals> m_held; // while one is
    platform::Awaited<Submission> m_submitting;
    QTimer m_progressTimer;
};

} // namespace host
