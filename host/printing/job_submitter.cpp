// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job_submitter.h"

#include "host/printing/reasons.h"

#include <QCoreApplication>
#include <QFile>

namespace host {

namespace {

struct SubmitText
{
    Q_DECLARE_TR_FUNCTIONS(SubmitText)
};

constexpr size_t maxIppName = 255; // bytes

void addOption(ipp_t *request, const JobOption &option)
{
    const QByteArray name = option.name.toUtf8();
    const QByteArray value = option.value.toUtf8();
    if (option.kind != JobOption::Kind::Choice) {
        CupsOptionList list;
        list.add(name.constData(), value.constData());
        cupsEncodeOptions2(request, list.count(), list.options(), IPP_TAG_JOB);
        return;
    }
    // libcups would make a boolean of "True", which reaches filters without its value, and a collection of
    // braces.
    const ipp_tag_t type = static_cast<size_t>(value.size()) > maxIppName ? IPP_TAG_TEXT : IPP_TAG_NAME;
    ippAddString(request, IPP_TAG_JOB, type, name.constData(), nullptr, value.constData());
}

bool isPageList(const QString &name)
{
    return name == QLatin1String("page-ranges");
}

// Values compare as the server writes them: without quotes, booleans by meaning, open ranges by their bounds.
QString comparable(const QString &name, QString value)
{
    if (isPageList(name)) {
        value.replace(QLatin1String("2147483647"), QString());
        return value;
    }
    return value.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0 ? QStringLiteral("true")
                                                                         : value.toLower();
}

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

IppPointer askForJob(const QByteArray &printerUri, int jobId)
{
    IppPointer request = printerRequest(IPP_OP_GET_JOB_ATTRIBUTES, printerUri);
    ippAddInteger(request.get(), IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr, "all");
    IppPointer answer = ask(std::move(request));
    return cupsLastError() <= IPP_STATUS_OK_CONFLICTING ? std::move(answer) : nullptr;
}

} // namespace

JobSubmitter::JobSubmitter(const JobRequest &request)
    : m_request(request), m_options(request.options), m_printerUri(request.destination.printerUri.toUtf8())
{
    if (m_printerUri.isEmpty())
        m_printerUri = printerUriOfQueue(request.destination.queue);
}

std::optional<SubmittedJob> JobSubmitter::submit(PrintError *error)
{
    if (!checkQueue(error))
        return std::nullopt;
    dropServerDefaults();
    SubmittedJob job;
    job.id = createJob(error);
    if (job.id == 0)
        return std::nullopt;
    for (qsizetype i = 0; i < m_request.documents.size(); ++i) {
        if (!sendDocument(job.id, i, error)) {
            cupsCancelJob2(CUPS_HTTP_DEFAULT, m_request.destination.queue.toUtf8().constData(), job.id, 0);
            return std::nullopt;
        }
    }
    job.differences = readBack(job.id);
    job.status = queryJobStatus(m_printerUri, job.id);
    job.status.printerStopped |= m_queue.stopped;
    return job;
}

bool JobSubmitter::checkQueue(PrintError *error)
{
    const QString name = m_request.destination.displayName();
    const auto queue = queryQueue(m_printerUri);
    if (!queue) {
        *error = lastCupsError(name);
        return false;
    }
    m_queue = *queue;
    if (!m_queue.accepting) {
        const QString why = reasonText(m_queue.stateReasons, m_queue.stateMessage);
        const QString reason = why.isEmpty() ? why : QStringLiteral(" ") + why;
        *error = {PrintError::Kind::QueueRejecting,
                  SubmitText::tr("The printer “%1” is not accepting jobs at the moment.").arg(name) + reason};
        return false;
    }
    return chooseFormats(m_queue.formats, error);
}

bool JobSubmitter::chooseFormats(const QStringList &supported, PrintError *error)
{
    const QString undecided = QStringLiteral("application/octet-stream"); // the server looks for itself
    for (const Document &document : m_request.documents) {
        QString format;
        for (const QString &candidate : QStringList(document.format) + document.otherFormats) {
            if (format.isEmpty() && (supported.contains(candidate) || candidate == undecided))
                format = candidate;
        }
        if (format.isEmpty() && supported.isEmpty())
            format = undecided;
        if (format.isEmpty()) {
            const QString type = document.formatText.isEmpty() ? document.format : document.formatText;
            *error = {PrintError::Kind::UnsupportedFormat,
                      SubmitText::tr(
                          "“%1” cannot be printed: the printer “%2” does not take documents of the type %3.")
                          .arg(document.name, m_request.destination.displayName(), type)};
            return false;
        }
        m_formats.append(format.toUtf8());
    }
    return true;
}

void JobSubmitter::dropServerDefaults()
{
    m_options.removeIf([this](const JobOption &option) {
        return option.kind == JobOption::Kind::Preference &&
               m_queue.defaults.value(option.name) == option.value;
    });
}

int JobSubmitter::createJob(PrintError *error)
{
    IppPointer request = printerRequest(IPP_OP_CREATE_JOB, m_printerUri);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 m_request.title.toUtf8().left(static_cast<qsizetype>(maxIppName)).constData());
    for (const JobOption &option : m_options)
        addOption(request.get(), option);
    const IppPointer answer = ask(std::move(request));
    const int id = attributeInteger(answer.get(), "job-id", 0);
    if (id == 0 || cupsLastError() > IPP_STATUS_OK_CONFLICTING) {
        *error = lastCupsError(m_request.destination.displayName());
        return 0;
    }
    return id;
}

bool JobSubmitter::sendDocument(int jobId, qsizetype index, PrintError *error)
{
    const Document &document = m_request.documents.at(index);
    const QByteArray queue = m_request.destination.queue.toUtf8();
    QFile file(document.path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = {PrintError::Kind::FileMissing,
                  SubmitText::tr("The file “%1” cannot be read: %2.").arg(document.path, file.errorString())};
        return false;
    }
    const bool last = index == m_request.documents.size() - 1;
    http_status_t status =
        cupsStartDocument(CUPS_HTTP_DEFAULT, queue.constData(), jobId, document.name.toUtf8().constData(),
                          m_formats.at(index).constData(), last);
    while (status == HTTP_STATUS_CONTINUE) {
        const QByteArray block = file.read(64 * 1024);
        if (block.isEmpty())
            break;
        status =
            cupsWriteRequestData(CUPS_HTTP_DEFAULT, block.constData(), static_cast<size_t>(block.size()));
    }
    if (file.error() != QFileDevice::NoError) {
        *error = {PrintError::Kind::Other,
                  SubmitText::tr("The file “%1” cannot be read: %2.").arg(document.path, file.errorString())};
        return false;
    }
    const bool sent = status == HTTP_STATUS_CONTINUE &&
                      cupsFinishDocument(CUPS_HTTP_DEFAULT, queue.constData()) <= IPP_STATUS_OK_CONFLICTING;
    if (!sent)
        *error = lastCupsError(m_request.destination.displayName());
    return sent;
}

QStringList JobSubmitter::readBack(int jobId) const
{
    const IppPointer job = askForJob(m_printerUri, jobId);
    if (!job)
        return {};
    QStringList differences;
    for (const JobOption &option : m_options) {
        const QString kept = attributeText(job.get(), option.name.toUtf8().constData());
        if (kept.isNull()) {
            differences.append(SubmitText::tr("The print server did not take “%1”.").arg(option.name));
        } else if (comparable(option.name, kept) != comparable(option.name, option.value)) {
            // The values stay out of it: some are codes.
            differences.append(SubmitText::tr("The print server took another value for “%1” than was sent.")
                                   .arg(option.name));
        }
    }
    return differences;
}

JobStatus queryJobStatus(const QByteArray &printerUri, int jobId)
{
    JobStatus status;
    const IppPointer job = askForJob(printerUri, jobId);
    if (!job)
        return status;
    status.state = jobState(attributeInteger(job.get(), "job-state", 0));
    QString message = attributeText(job.get(), "job-printer-state-message");
    QStringList reasons = attributeTexts(job.get(), "job-state-reasons");
    status.printerStopped = reasons.contains(QStringLiteral("printer-stopped"));
    reasons += attributeTexts(job.get(), "job-printer-state-reasons");
    // Of a job that has not begun the server tells nothing about its printer.
    const auto queue = status.state == JobStatus::State::Pending ? queryQueue(printerUri) : std::nullopt;
    if (queue) {
        status.printerStopped |= queue->stopped;
        reasons += queue->stateReasons;
        if (message.isEmpty())
            message = queue->stateMessage;
    }
    status.message = reasonText(reasons, message);
    return status;
}

} // namespace host
