// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job_lookup.h"

#include "host/printing/ipp_query.h"
#include "host/printing/reasons.h"

#include <QDeadlineTimer>
#include <QThread>

#include <algorithm>
#include <array>
#include <chrono>

namespace host {

namespace {

constexpr unsigned long betweenTries = 200; // milliseconds
// Time in which a server must report the outcome of a job that the user has canceled.
constexpr std::chrono::seconds patienceAtTheEnd(3);

JobStatus::State jobState(int ippState)
{
    switch (ippState) {
    case IPP_JSTATE_PENDING:
        return JobStatus::State::Pending;
    case IPP_JSTATE_HELD:
        return JobStatus::State::Held;
    case IPP_JSTATE_PROCESSING:
        return JobStatus::State::Processing;
    case IPP_JSTATE_STOPPED:
        return JobStatus::State::Stopped;
    case IPP_JSTATE_CANCELED:
        return JobStatus::State::Cancelled;
    case IPP_JSTATE_ABORTED:
        return JobStatus::State::Aborted;
    case IPP_JSTATE_COMPLETED:
        return JobStatus::State::Completed;
    default:
        return JobStatus::State::Unknown;
    }
}

JobStatus readStatus(ipp_t *message)
{
    JobStatus status;
    status.state = jobState(attributeInteger(message, "job-state", 0));
    const QStringList reasons = attributeTexts(message, "job-state-reasons");
    status.message = reasonText(reasons + attributeTexts(message, "job-printer-state-reasons"),
                                attributeText(message, "job-printer-state-message"));
    status.printerStopped = reasons.contains(QLatin1String("printer-stopped"));
    const QString hold = attributeText(message, "job-hold-until");
    status.isHeldByUser = hold == QLatin1String("indefinite");
    if (!status.isHeldByUser && hold != QLatin1String("no-hold") &&
        hold != QLatin1String("auth-info-required"))
        status.heldUntil = hold;
    status.printedPages = std::max(attributeInteger(message, "job-impressions-completed", 0),
                                   attributeInteger(message, "job-media-sheets-completed", 0));
    return status;
}

JobOnServer read(IppPointer attributes)
{
    JobOnServer job;
    ipp_t *message = attributes.get();
    job.id = attributeInteger(message, "job-id", 0);
    job.status = readStatus(message);
    job.isIncoming = attributeTexts(message, "job-state-reasons").contains(QLatin1String("job-incoming"));
    job.hasBegun = ippFindAttribute(message, "time-at-processing", IPP_TAG_INTEGER) != nullptr;
    job.kilobytes = attributeInteger(message, "job-k-octets", -1);
    job.token = attributeText(message, tokenAttribute).toUtf8();
    job.attributes = std::move(attributes);
    return job;
}

} // namespace

JobLookup::JobLookup(LoginKeeper *login, QByteArray printerUri)
    : m_login(login), m_printerUri(std::move(printerUri)), m_resource(resourceOf(m_printerUri))
{
}

void JobLookup::setStop(std::function<bool()> stop)
{
    m_stop = std::move(stop);
}

std::function<bool()> JobLookup::stopSoon() const
{
    return [this, left = QDeadlineTimer(QDeadlineTimer::Forever)]() mutable {
        if (!m_stop || !m_stop())
            return false;
        if (left.isForever())
            left.setRemainingTime(patienceAtTheEnd);
        return left.hasExpired();
    };
}

void JobLookup::prepare(ServerConnection *server) const
{
    server->setStop(stopSoon());
    server->setDeadline(m_deadline);
}

JobLookup::Result JobLookup::noAnswer(const Reply &reply)
{
    m_problem = reply.error({});
    m_wasSilent = reply.wasSilent;
    return Result::NoAnswer;
}

IppPointer JobLookup::jobRequest(ipp_op_t operation, int id) const
{
    IppPointer request = printerRequest(operation, m_printerUri);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", id);
    return request;
}

JobLookup::Result JobLookup::byId(int id, JobOnServer *job)
{
    ServerConnection server(m_login);
    prepare(&server);
    return byId(id, &server, job);
}

JobLookup::Result JobLookup::byId(int id, ServerConnection *server, JobOnServer *job)
{
    IppPointer request = jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, id);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "all");
    return ask(std::move(request), id, server, job);
}

JobLookup::Result JobLookup::status(int id, ServerConnection *server, JobStatus *status)
{
    // The attributes that readStatus() reads.
    static const std::array<const char *, 8> wanted = {"job-id",
                                                       "job-state",
                                                       "job-state-reasons",
                                                       "job-printer-state-reasons",
                                                       "job-printer-state-message",
                                                       "job-hold-until",
                                                       "job-impressions-completed",
                                                       "job-media-sheets-completed"};
    IppPointer request = jobRequest(IPP_OP_GET_JOB_ATTRIBUTES, id);
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    JobOnServer job;
    const Result result = ask(std::move(request), id, server, &job);
    *status = std::move(job.status);
    return result;
}

JobLookup::Result JobLookup::ask(IppPointer request, int id, ServerConnection *server, JobOnServer *job)
{
    Reply reply = server->ask(std::move(request), m_resource);
    if (reply.succeeded()) {
        *job = read(std::move(reply.message));
        return job->id == id ? Result::Found : Result::NoAnswer;
    }
    const bool isGone = reply.outcome == Reply::Outcome::Answered &&
                        (reply.status == IPP_STATUS_ERROR_NOT_FOUND || reply.status == IPP_STATUS_ERROR_GONE);
    return isGone ? Result::NotThere : noAnswer(reply);
}

JobLookup::Result JobLookup::search(const QByteArray &token, JobOnServer *job)
{
    static const std::array<const char *, 2> wanted = {"job-id", tokenAttribute};
    IppPointer request = printerRequest(IPP_OP_GET_JOBS, m_printerUri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "all");
    ippAddStrings(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    ServerConnection server(m_login);
    prepare(&server);
    const Reply reply = server.ask(std::move(request), m_resource);
    if (!reply.succeeded())
        return noAnswer(reply);
    int id = 0;
    int found = 0;
    ipp_t *answer = reply.message.get();
    for (ipp_attribute_t *a = ippFirstAttribute(answer); a; a = ippNextAttribute(answer)) {
        if (!ippGetName(a))
            id = 0; // next job
        else if (qstrcmp(ippGetName(a), "job-id") == 0)
            id = ippGetInteger(a, 0);
        else if (qstrcmp(ippGetName(a), tokenAttribute) == 0 && token == ippGetString(a, 0, nullptr))
            found = -1;
        if (found < 0 && id > 0)
            found = id;
    }
    if (found <= 0)
        return Result::NotThere;
    const Result result = byId(found, job);
    return result == Result::Found && job->token != token ? Result::NotThere : result;
}

JobLookup::Result JobLookup::byToken(int id, const QByteArray &token, const QDeadlineTimer &tries,
                                     JobOnServer *job)
{
    while (true) {
        Result result = id > 0 ? byId(id, job) : Result::NotThere;
        if (result == Result::Found && job->token != token)
            result = Result::NotThere;
        if (result == Result::NotThere)
            result = search(token, job);
        if (result != Result::NoAnswer || tries.hasExpired() || m_deadline.hasExpired() ||
            (m_stop && m_stop()))
            return result;
        QThread::msleep(betweenTries);
    }
}

Reply JobLookup::change(ipp_op_t operation, int id)
{
    ServerConnection server(m_login);
    prepare(&server);
    return server.ask(jobRequest(operation, id), m_resource);
}

} // namespace host
