// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job_submitter.h"

#include "host/printing/file_name.h"
#include "host/printing/gzip_file.h"
#include "host/printing/held_signals.h"
#include "host/printing/job_attributes.h"
#include "host/printing/option_text.h"
#include "host/printing/page_settings.h"
#include "host/printing/reasons.h"
#include "host/printing/utf8_text.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QUuid>

#include <algorithm>
#include <optional>

#include <fcntl.h>

namespace host {

namespace {

struct SubmitText
{
    Q_DECLARE_TR_FUNCTIONS(SubmitText)
};

constexpr char undecidedFormat[] = "application/octet-stream"; // the server determines the type
constexpr char rawFormat[] = "application/vnd.cups-raw";

// Limited to the length that the server accepts, without an incomplete character.
QByteArray nameBytes(const QString &text)
{
    return utf8Beginning(text, maxIppName);
}

PrintError unreadable(const QString &path, const QString &reason)
{
    return {PrintError::Kind::FileMissing,
            SubmitText::tr("The file “%1” cannot be read: %2.").arg(readableFileName(path), reason)};
}

// Formats that a print server would pass to the printer unchanged: programs, archives, sound.
bool isNothingToPrint(const Document &document, const QStringList &supported)
{
    const bool isPrintable = document.format.startsWith(QLatin1String("text/")) ||
                             document.format.startsWith(QLatin1String("image/")) ||
                             document.format == QLatin1String(undecidedFormat);
    const QStringList names = QStringList(document.format) + document.otherFormats;
    return !isPrintable && std::none_of(names.begin(), names.end(),
                                        [&](const QString &name) { return supported.contains(name); });
}

} // namespace

JobSubmitter::JobSubmitter(const JobRequest &request, const SubmissionWatch &watch, LoginKeeper *login)
    : m_request(request), m_watch(watch), m_login(login), m_options(lastOfEach(request.options)),
      m_printerUri(request.destination.printerUri.isEmpty() ? printerUriOfQueue(request.destination.queue)
                                                            : request.destination.printerUri.toUtf8()),
      m_resource(resourceOf(m_printerUri)),
      m_token("urn:uuid:" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces)), m_server(login),
      m_lookup(login, m_printerUri)
{
    m_server.setStop([this] { return isCancelled(); });
    m_lookup.setStop([this] { return isCancelled(); });
}

bool JobSubmitter::isCancelled() const
{
    return HeldSignals::isPending() || (m_watch.isCancelled && m_watch.isCancelled());
}

Submission JobSubmitter::submit()
{
    PrintError problem;
    if (!checkQueue(&problem))
        return rejected(problem);
    if (!createJob(&problem))
        return m_mayExist ? concluded(problem) : rejected(problem);
    for (qsizetype i = 0; i < m_request.documents.size(); ++i) {
        if (!sendDocument(i, &problem))
            return concluded(problem);
    }
    return kept();
}

bool JobSubmitter::checkQueue(PrintError *error)
{
    const QString name = m_request.destination.displayName();
    const auto queue = queryQueue(&m_server, m_printerUri, name, error);
    if (!queue)
        return false;
    m_queue = *queue;
    if (!m_queue.accepting) {
        const QString why = reasonText(m_queue.stateReasons, m_queue.stateMessage);
        const QString reason = why.isEmpty() ? why : QStringLiteral(" ") + why;
        *error = {PrintError::Kind::QueueRejecting,
                  SubmitText::tr("The printer “%1” is not accepting jobs at the moment.").arg(name) + reason};
        return false;
    }
    takeOptions();
    for (const Document &document : m_request.documents) {
        const auto format = formatOf(document, error);
        if (!format)
            return false;
        m_formats.append(*format);
        m_total += document.size;
    }
    return true;
}

void JobSubmitter::takeOptions()
{
    m_options.removeIf([this](const JobOption &option) {
        const bool isRaw = option.name == QLatin1String("raw");
        const bool isFormat = option.name == QLatin1String("document-format");
        if (isRaw && switchValue(option.value).value_or(false))
            m_forcedFormat = rawFormat;
        else if (isFormat)
            m_forcedFormat = option.value.toUtf8();
        const bool isServers =
            option.kind == JobOption::Kind::Preference && m_queue.defaults.value(option.name) == option.value;
        const bool isApplied = option.name == naturalScalingName; // to the documents, by the caller
        return isRaw || isFormat || isServers || isApplied;
    });
}

std::optional<QByteArray> JobSubmitter::formatOf(const Document &document, PrintError *error) const
{
    if (!m_forcedFormat.isEmpty())
        return m_forcedFormat;
    const QStringList &supported = m_queue.formats;
    // The server knows which types its filters accept, and determines the type itself. But it would treat a
    // drawing in XML as plain text.
    const bool looks = supported.isEmpty() || supported.contains(QLatin1String(undecidedFormat));
    if (looks && !document.isDrawingInText && !isNothingToPrint(document, supported))
        return undecidedFormat;
    if (supported.contains(document.format))
        return document.format.toUtf8();
    const QString type = document.formatText.isEmpty() ? document.format : document.formatText;
    *error = {
        PrintError::Kind::UnsupportedFormat,
        SubmitText::tr("“%1” cannot be printed: the printer “%2” does not accept documents of the type %3.")
            .arg(document.name, m_request.destination.displayName(), type)};
    return std::nullopt;
}

bool JobSubmitter::createJob(PrintError *error)
{
    IppPointer request = printerRequest(IPP_OP_CREATE_JOB, m_printerUri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 nameBytes(m_request.title).constData());
    addPassword(request.get(), m_options, m_queue.passwordEncryptions);
    ippAddString(request.get(), IPP_TAG_JOB, IPP_TAG_URI, tokenAttribute, nullptr, m_token.constData());
    for (const JobOption &option : m_options) {
        if (option.kind != JobOption::Kind::Shown)
            addJobOption(request.get(), option);
    }
    Reply reply = m_server.ask(std::move(request), m_resource);
    if (reply.succeeded()) {
        m_id = attributeInteger(reply.message.get(), "job-id", 0);
        if (m_id > 0)
            return true;
        m_id = 0;
        reply.outcome = Reply::Outcome::Lost; // a success without a job number is invalid
        reply.wasGarbled = true;
    }
    *error = reply.error(m_request.destination.displayName());
    // A job without documents is not printed, but should not stay in the queue either.
    m_mayExist = reply.outcome == Reply::Outcome::Lost && reply.wasSentWhole;
    m_wasSilent = reply.wasSilent;
    return false;
}

IppPointer JobSubmitter::documentRequest(qsizetype index) const
{
    IppPointer request = printerRequest(IPP_OP_SEND_DOCUMENT, m_printerUri);
    ipp_t *message = request.get();
    ippAddInteger(message, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", m_id);
    ippAddString(message, IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr,
                 nameBytes(m_request.documents.at(index).name).constData());
    ippAddString(message, IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr,
                 m_formats.at(index).constData());
    ippAddBoolean(message, IPP_TAG_OPERATION, "last-document", index == m_request.documents.size() - 1);
    return request;
}

bool JobSubmitter::sendDocument(qsizetype index, PrintError *error)
{
    const Document &document = m_request.documents.at(index);
    QFile file;
    QString problem;
    if (!openForReading(&file, document.path, &problem)) {
        *error = unreadable(document.path, problem);
        return false;
    }
    // A server does not determine the type of compressed data, or ignores that it is compressed.
    std::optional<GzipFile> contents;
    if (document.isCompressed)
        contents.emplace(::fcntl(file.handle(), F_DUPFD_CLOEXEC, 0));
    QIODevice *source = contents ? static_cast<QIODevice *>(&*contents) : &file;
    qint64 ofThis = 0;
    const Reply reply = m_server.send(documentRequest(index), m_resource, source, [&](qint64 sent) {
        ofThis = sent;
        if (m_watch.progress)
            m_watch.progress(m_sent + std::min(sent, document.size), m_total);
    });
    m_sent += std::min(ofThis, document.size);
    m_kilobytes += (ofThis + 1023) / 1024;
    if (reply.succeeded()) {
        m_mayPrint = true;
        return true;
    }
    if (reply.outcome == Reply::Outcome::Lost && reply.wasSentWhole) {
        m_mayPrint = true;
        m_mayBeWhole = index == m_request.documents.size() - 1;
    }
    m_wasSilent = reply.wasSilent;
    const bool isUnreadable = contents ? contents->hasFailed() : file.error() != QFileDevice::NoError;
    *error = isUnreadable ? unreadable(document.path, source->errorString())
                          : reply.error(m_request.destination.displayName());
    return false;
}

// Compares with the size that the server reports, which includes banners that it has added.
bool JobSubmitter::isWhole(const JobOnServer &job) const
{
    return !job.isIncoming && (job.kilobytes < 0 || job.kilobytes >= m_kilobytes);
}

// After an error, determines how much of the job the server has.
Submission JobSubmitter::concluded(const PrintError &why)
{
    limitLookup();
    JobOnServer found;
    const auto result =
        m_lookup.byToken(m_id, m_token, QDeadlineTimer(m_login->patience.recoveryTime), &found);
    if (result != JobLookup::Result::Found && m_mayPrint)
        return unknown(why);
    if (result != JobLookup::Result::Found)
        return result == JobLookup::Result::NotThere ? rejected(why) : leftOver(why);
    m_id = found.id;
    if (m_mayPrint && isCancelled())
        return withdrawn(found);
    if (m_mayBeWhole && isWhole(found))
        return accepted(std::move(found));
    return cancelled(why, found);
}

void JobSubmitter::limitLookup()
{
    const bool isShort = m_wasSilent || m_lookup.wasSilent() || isCancelled();
    const ServerPatience &patience = m_login->patience;
    m_lookup.setDeadline(QDeadlineTimer(isShort ? patience.recoveryTime : patience.idleTime));
}

Submission JobSubmitter::cancelled(const PrintError &why, const JobOnServer &found)
{
    const bool confirmed = m_lookup.cancel(found.id);
    JobOnServer after;
    const auto result = m_lookup.byToken(found.id, m_token, QDeadlineTimer(0), &after);
    const bool isOver = result == JobLookup::Result::Found && after.status.isFinal();
    // After a crash, a server may no longer know that it had started to print a complete job.
    if (m_mayBeWhole || (m_mayPrint && (!isOver || after.hasBegun)))
        return unknown(why);
    return confirmed || isOver || result == JobLookup::Result::NotThere ? rejected(why) : leftOver(why);
}

Submission JobSubmitter::withdrawn(const JobOnServer &found)
{
    Reply stopped;
    stopped.outcome = Reply::Outcome::Stopped;
    PrintError why = stopped.error({});
    const bool confirmed = m_lookup.cancel(found.id);
    JobOnServer after;
    const bool isThere =
        m_lookup.byToken(found.id, m_token, QDeadlineTimer(0), &after) == JobLookup::Result::Found;
    if (isThere && after.status.state == JobStatus::State::Completed)
        return accepted(std::move(after)); // it was too late to cancel
    if (!confirmed && !(isThere && after.status.isFinal())) {
        why.message += QLatin1Char(' ') + SubmitText::tr("The job %1 could not be canceled.").arg(m_id);
        return unknown(why);
    }
    if (found.hasBegun || after.hasBegun)
        why.message += QLatin1Char(' ') + SubmitText::tr("Some of it may have been printed.");
    return rejected(why);
}

Submission JobSubmitter::rejected(const PrintError &why) const
{
    Submission result{Submission::Outcome::Rejected, {}, why};
    if (why.kind == PrintError::Kind::ConnectionLost)
        result.error.message += QLatin1Char(' ') + SubmitText::tr("Nothing was printed.");
    return result;
}

Submission JobSubmitter::unknown(const PrintError &why) const
{
    Submission result{Submission::Outcome::Unknown, {m_id, {}, {}}, why};
    result.error.message +=
        QLatin1Char(' ') + SubmitText::tr("It is not known whether the job was accepted. It may print; look "
                                          "at the queue before printing again.");
    return result;
}

Submission JobSubmitter::leftOver(const PrintError &why) const
{
    Submission result{Submission::Outcome::Unknown, {m_id, {}, {}}, why};
    const QString job = m_id > 0
                            ? SubmitText::tr("The unfinished job %1 could not be canceled.").arg(m_id)
                            : SubmitText::tr("An unfinished job may have been left at the print server.");
    result.error.message += QLatin1Char(' ') + job + QLatin1Char(' ') +
                            SubmitText::tr("Look at the queue before printing again.");
    return result;
}

// All documents have been sent. A server that crashes right after that may lose the job; a server that is
// still running may have printed it and keep no history. Only its connection distinguishes the two.
Submission JobSubmitter::kept()
{
    JobOnServer found;
    const quint64 connection = m_server.number();
    auto result = m_lookup.byId(m_id, &m_server, &found);
    const bool isSameServer = connection != 0 && m_server.number() == connection;
    if (isCancelled()) {
        Reply stopped;
        stopped.outcome = Reply::Outcome::Stopped;
        return concluded(stopped.error({}));
    }
    if (result == JobLookup::Result::Found && found.token == m_token && (isSameServer || isWhole(found)))
        return accepted(std::move(found));
    if (result == JobLookup::Result::NotThere && isSameServer)
        return accepted({});
    limitLookup();
    result = m_lookup.byToken(m_id, m_token, QDeadlineTimer(m_login->patience.recoveryTime), &found);
    if (result == JobLookup::Result::Found && isWhole(found))
        return accepted(std::move(found));
    if (result == JobLookup::Result::NoAnswer)
        return unknown(m_lookup.problem());
    Reply broken;
    broken.outcome = Reply::Outcome::Lost;
    return unknown(broken.error(m_request.destination.displayName()));
}

Submission JobSubmitter::accepted(JobOnServer found) const
{
    Submission result;
    result.outcome = Submission::Outcome::Accepted;
    result.job.id = m_id;
    if (!found.attributes) {
        result.job.differences.append(
            SubmitText::tr("The print server did not report the settings that it accepted."));
        return result;
    }
    result.job.differences = differencesOf(m_options, found.attributes.get());
    result.job.status = found.status;
    result.job.status.printerStopped |= m_queue.stopped;
    return result;
}

} // namespace host
