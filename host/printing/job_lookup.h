// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"
#include "host/printing/server_connection.h"

#include <QDeadlineTimer>

namespace host {

// The attribute with which the program marks its jobs. The server stores its type, a URI, and does not pass
// it to filters.
inline constexpr char tokenAttribute[] = "kelmar-submission";

// A job as reported by the server.
struct JobOnServer
{
    int id = 0;
    JobStatus status;
    bool isIncoming = false; // the server is still expecting documents
    bool hasBegun = false;   // printing has started, or has ended
    int kilobytes = -1;      // of its documents, each rounded up; -1 if not reported
    QByteArray token;
    IppPointer attributes;
};

// Queries the jobs of one printer on each call. Blocks. For use by one submission; the login outlives it.
class JobLookup
{
public:
    enum class Result { Found, NotThere, NoAnswer };

    JobLookup(LoginKeeper *login, QByteArray printerUri);
    // Checked while waiting; true ends a wait between two tries at once, and a wait for a response soon.
    void setStop(std::function<bool()> stop);
    // The time after which requests fail. Never, unless it is set.
    void setDeadline(const QDeadlineTimer &deadline) { m_deadline = deadline; }

    Result byId(int id, JobOnServer *job);
    // The same on the caller's connection.
    Result byId(int id, ServerConnection *server, JobOnServer *job);
    // Requests only the state, which is a small response.
    Result status(int id, ServerConnection *server, JobStatus *status);
    // Repeats the request until the server responds, or until `tries` expires. Only a job with this token
    // counts, since the server may assign a number again after a crash. `id` is 0 if it is unknown.
    Result byToken(int id, const QByteArray &token, const QDeadlineTimer &tries, JobOnServer *job);
    // Whether the server confirmed it.
    bool cancel(int id) { return change(IPP_OP_CANCEL_JOB, id).succeeded(); }
    // Sends an operation on a job that only needs its number.
    Reply change(ipp_op_t operation, int id);
    // The reason of the last failure.
    const PrintError &problem() const { return m_problem; }
    bool wasSilent() const { return m_wasSilent; } // whether that was the reason

private:
    std::function<bool()> stopSoon() const;
    void prepare(ServerConnection *server) const;
    Result noAnswer(const Reply &reply);
    Result ask(IppPointer request, int id, ServerConnection *server, JobOnServer *job);
    Result search(const QByteArray &token, JobOnServer *job);
    IppPointer jobRequest(ipp_op_t operation, int id) const;

    LoginKeeper *m_login;
    QByteArray m_printerUri;
    QByteArray m_resource;
    std::function<bool()> m_stop;
    QDeadlineTimer m_deadline{QDeadlineTimer::Forever};
    PrintError m_problem;
    bool m_wasSilent = false;
};

} // namespace host
