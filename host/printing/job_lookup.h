// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"
#include "host/printing/server_connection.h"

#include <QDeadlineTimer>

namespace host {

// The attribute that marks each job of ours. Its type, a URI, is one that the server keeps and does not hand
// to filters.
inline constexpr char tokenAttribute[] = "kelmar-submission";

// A job as the server knows it.
struct JobOnServer
{
    int id = 0;
    JobStatus status;
    bool isIncoming = false; // documents are still expected
    bool hasBegun = false;   // it has been, or is being, printed
    int kilobytes = -1;      // of its documents, each rounded up; -1 where the server does not say
    QByteArray token;
    IppPointer attributes;
};

// One printer's jobs, asked for anew at each call. Blocks. A value for one use; the login outlives it.
class JobLookup
{
public:
    enum class Result { Found, NotThere, NoAnswer };

    JobLookup(LoginKeeper *login, QByteArray printerUri);
    // Looked at while it waits; true ends the wait between two tries at once, and that for an answer soon.
    void setStop(std::function<bool()> stop);
    // When no request is waited for any more, or made. Never, unless it is set.
    void setDeadline(const QDeadlineTimer &deadline) { m_deadline = deadline; }

    Result byId(int id, JobOnServer *job);
    // The same on a connection of the caller's.
    Result byId(int id, ServerConnection *server, JobOnServer *job);
    // Only how it is doing, which is a small answer.
    Result status(int id, ServerConnection *server, JobStatus *status);
    // Tries until the server answers, or until `tries`. Only a job with this token counts: after a breakdown
    // a server may give a number again. `id` is 0 where it is not known.
    Result byToken(int id, const QByteArray &token, const QDeadlineTimer &tries, JobOnServer *job);
    // Whether the server confirmed it.
    bool cancel(int id) { return change(IPP_OP_CANCEL_JOB, id).succeeded(); }
    // Has the server do something to a job that needs no more than its number.
    Reply change(ipp_op_t operation, int id);
    // Why there was no answer, the last time that there was none.
    const PrintError &problem() const { return m_problem; }
    bool wasSilent() const { return m_wasSilent; } // that was why

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
