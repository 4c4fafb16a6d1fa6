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

// The host's interface to the print system. One object per program. Each call is a request to the server and
// blocks until the server has responded. Thread-safe. Errors are localised.
class PrintSystem
{
public:
    virtual ~PrintSystem();

    // All queues and presets for a selection list, without their options, which destination() returns. Null
    // with an error if the server cannot be queried; empty if there are none.
    virtual std::optional<QList<Destination>> destinations(PrintError *error) = 0;
    // A destination by name ("queue" or "queue/instance"); the user's default for an empty name.
    virtual std::optional<Destination> destination(const QString &name, PrintError *error) = 0;
    // Null without an error if the queue has no PPD.
    virtual std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) = 0;
    // Sends a job and returns the outcome. A signal held by HeldSignals cancels it, as does the watch.
    virtual Submission submit(const JobRequest &request, const SubmissionWatch &watch) = 0;
    virtual JobStatus jobStatus(const Destination &destination, int jobId) = 0;
    // False with an error if the server refuses.
    virtual bool changeJob(const Destination &destination, int jobId, JobAction action,
                           PrintError *error) = 0;
    // The same destination with the current state of its queue, requested with one request; null if the
    // server does not respond.
    virtual std::optional<Destination> withState(const Destination &destination) = 0;
    // What the printer itself reports, if its address is known; null if it does not respond. Takes some
    // seconds if the printer sleeps.
    virtual std::optional<DeviceReport> reportOf(const Destination &destination) = 0;
    // Searches the network for printers without a queue; destination() and later calls accept the printers
    // that were found. If `found`, which is called on this thread, returns false, the search ends.
    virtual void searchNetwork(const std::function<bool(const Destination &)> &found) = 0;
    // Called when the server requires a user name and a password; a null result declines. Without a prompt
    // such requests are refused. One answer serves all requests.
    virtual void setLoginPrompt(LoginPrompt prompt) = 0;
};

// The print system accessed through libcups: the server from CUPS_SERVER or client.conf.
class CupsPrintSystem : public PrintSystem
{
public:
    static constexpr qint64 maxPpdSize = 32 * 1024 * 1024; // bytes

    CupsPrintSystem() : CupsPrintSystem(ServerPatience()) {}
    explicit CupsPrintSystem(const ServerPatience &patience) { m_login.patience = patience; }
    // Sets requests that were started before this object was created; destination() and ppd() use their
    // results first. Call before either.
    void setEarlyPrinter(std::shared_ptr<EarlyPrinter> early) { m_early = std::move(early); }
    std::optional<QList<Destination>> destinations(PrintError *error) override;
    std::optional<Destination> destination(const QString &name, PrintError *error) override;
    std::unique_ptr<PpdDocument> ppd(const Destination &destination, PrintError *error) override;
    Submission submit(const JobRequest &request, const SubmissionWatch &watch) override;
    JobStatus jobStatus(const Destination &destination, int jobId) override;
    bool changeJob(const Destination &destination, int jobId, JobAction action, PrintError *error) override;
    std::optional<Destination> withState(const Destination &destination) override;
    std::optional<DeviceReport> reportOf(const Destination &destination) override;
    void searchNetwork(const std::function<bool(const Destination &)> &found) override;
    void setLoginPrompt(LoginPrompt prompt) override;

private:
    class Visit;
    // The facts of a queue, which is created if it does not exist yet; null with an error.
    std::optional<QueueFacts> factsOf(ServerConnection *server, const Destination &destination,
                                      PrintError *error);
    // Adds the state of the printer to a job that has not started, without querying it on each call.
    void addPrinterState(ServerConnection *server, const Destination &destination, int jobId,
                         JobStatus *status);
    std::optional<Login> askOnce(const Visit &visit, const LoginQuestion &question);

    std::mutex m_loginMutex; // guards the next three members
    LoginKeeper m_login;
    int m_refusals = 0;        // how often the user has declined to answer
    bool m_wasRefused = false; // and no new action of the user since
    std::mutex m_promptMutex;  // locked while the user is prompted
    std::mutex m_waitingMutex; // guards the next members
    struct Waiting
    {
        int looks = 0; // since the printer was last queried
        bool isStopped = false;
        QString message;
    };
    QMap<int, Waiting> m_waiting; // by job
    NetworkPrinters m_network;
    std::shared_ptr<EarlyPrinter> m_early; // may be null
};

} // namespace host
