// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/job.h"
#include "host/printing/network_printers.h"
#include "host/printing/ppd_document.h"
#include "host/printing/server_connection.h"

#include <QList>
#include <QMap>

#include <memory>
#include <mutex>
#include <optional>

namespace host {

class EarlyPrinter;
struct QueueFacts;

// What the host asks of the print system. One object a program; every call is a request to the server and
// blocks until it has answered. May be called on several threads at once. Errors are in plain words.
class PrintSystem
{
public:
    virtual ~PrintSystem();

    // Every queue and preset, to choose from: without their options, which destination() gives. Null with an
    // error when the server cannot be asked; empty when there is none.
    virtual std::optional<QList<Destination>> destinations(PrintError *error) = 0;
    // One of them by name ("queue" or "queue/instance"); the user's default for an empty name.
    virtual std::optional<Destination> destination(const QString &name, PrintError *error) = 0;
    // Null without an error for a queue that has no PPD.
    virtual std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) = 0;
    // Sends a job and tells what became of it. A signal held by HeldSignals cancels it, as the watch can.
    virtual Submission submit(const JobRequest &request, const SubmissionWatch &watch) = 0;
    virtual JobStatus jobStatus(const Destination &destination, int jobId) = 0;
    // False with an error when the server does not do it.
    virtual bool changeJob(const Destination &destination, int jobId, JobAction action,
                           PrintError *error) = 0;
    // The same destination with the state its queue has now, asked with one request; null when the server
    // does not answer.
    virtual std::optional<Destination> withState(const Destination &destination) = 0;
    // Looks for printers in the network that need no queue; destination() and all that comes after it know
    // those that were found. False from `found`, which is called on this thread, ends the search.
    virtual void searchNetwork(const std::function<bool(const Destination &)> &found) = 0;
    // Called where the server wants a user name and a password; null means no. Without it such requests
    // are refused. One answer does for all.
    virtual void setLoginPrompt(LoginPrompt prompt) = 0;
};

// The print system that libcups knows: the server of CUPS_SERVER or client.conf.
class CupsPrintSystem : public PrintSystem
{
public:
    static constexpr qint64 maxPpdSize = 32 * 1024 * 1024; // bytes

    CupsPrintSystem() : CupsPrintSystem(ServerPatience()) {}
    explicit CupsPrintSystem(const ServerPatience &patience) { m_login.patience = patience; }
    // What was asked for before this object was made; destination() and ppd() take from it first. Before
    // either.
    void setEarlyPrinter(std::shared_ptr<EarlyPrinter> early) { m_early = std::move(early); }
    std::optional<QList<Destination>> destinations(PrintError *error) override;
    std::optional<Destination> destination(const QString &name, PrintError *error) override;
    std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) override;
    Submission submit(const JobRequest &request, const SubmissionWatch &watch) override;
    JobStatus jobStatus(const Destination &destination, int jobId) override;
    bool changeJob(const Destination &destination, int jobId, JobAction action, PrintError *error) override;
    std::optional<Destination> withState(const Destination &destination) override;
    void searchNetwork(const std::function<bool(const Destination &)> &found) override;
    void setLoginPrompt(LoginPrompt prompt) override;

private:
    class Visit;
    // Of a queue that must be there, or be made; null with an error.
    std::optional<QueueFacts> factsOf(ServerConnection *server, const Destination &destination,
                                      PrintError *error);
    // What the printer of a job that has not begun says, which not each look at the job asks for anew.
    void addPrinterState(ServerConnection *server, const Destination &destination, int jobId,
                         JobStatus *status);
    std::optional<Login> askOnce(const Visit &visit, const LoginQuestion &question);

    std::mutex m_loginMutex; // guards the three that follow
    LoginKeeper m_login;
    int m_refusals = 0;        // of people to answer
    bool m_wasRefused = false; // and they have done nothing since
    std::mutex m_promptMutex;  // held while the user is asked
    std::mutex m_waitingMutex; // guards what follows
    struct Waiting
    {
        int looks = 0; // since its printer was asked
        bool isStopped = false;
        QString message;
    };
    QMap<int, Waiting> m_waiting; // by job
    NetworkPrinters m_network;
    std::shared_ptr<EarlyPrinter> m_early; // may be null
};

} // namespace host
