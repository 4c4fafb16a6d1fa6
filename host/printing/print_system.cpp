// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/print_system.h"

#include "host/printing/cups_handles.h"
#include "host/printing/ipp_query.h"
#include "host/printing/job_submitter.h"

#include <QCoreApplication>

namespace host {

namespace {

struct PrintSystemText
{
    Q_DECLARE_TR_FUNCTIONS(PrintSystemText)
};

// libcups keeps the pointer until it is asked again.
thread_local QByteArray givenPassword;

const char *passwordForCups(const char *prompt, http_t *, const char *, const char *, void *userData)
{
    const auto &ask = *static_cast<const PrintSystem::PasswordPrompt *>(userData);
    const auto password = ask ? ask(QString::fromUtf8(prompt)) : std::nullopt;
    if (!password)
        return nullptr;
    givenPassword = password->toUtf8();
    return givenPassword.constData();
}

QString optionOf(const cups_dest_t *destination, const char *name)
{
    return QString::fromUtf8(cupsGetOption(name, destination->num_options, destination->options));
}

Destination fromCups(const cups_dest_t *record)
{
    Destination destination;
    destination.queue = QString::fromUtf8(record->name);
    destination.instance = QString::fromUtf8(record->instance);
    destination.isDefault = record->is_default != 0;
    destination.info = optionOf(record, "printer-info");
    destination.location = optionOf(record, "printer-location");
    destination.makeAndModel = optionOf(record, "printer-make-and-model");
    destination.deviceUri = optionOf(record, "device-uri");
    destination.printerUri = optionOf(record, "printer-uri-supported");
    destination.accepting = optionOf(record, "printer-is-accepting-jobs") != QLatin1String("false");
    destination.stopped = optionOf(record, "printer-state").toInt() == IPP_PSTATE_STOPPED;
    for (int i = 0; i < record->num_options; ++i)
        destination.options.insert(QString::fromUtf8(record->options[i].name),
                                   QString::fromUtf8(record->options[i].value));
    return destination;
}

PrintError noDefault()
{
    return {PrintError::Kind::NoSuchPrinter,
            PrintSystemText::tr("No default printer has been set; choose a printer by name.")};
}

PrintError onlyOpensDialog(const Destination &destination)
{
    return {
        PrintError::Kind::NoSuchPrinter,
        PrintSystemText::tr("“%1” opens the print dialog and prints nothing itself; choose another printer.")
            .arg(destination.displayName())};
}

// libcups does not tell a server that is away from one that has no default printer.
PrintError noDefaultPrinter()
{
    if (!ask(IppPointer(ippNewRequest(IPP_OP_CUPS_GET_PRINTERS))) ||
        cupsLastError() > IPP_STATUS_OK_CONFLICTING)
        return lastCupsError(QString());
    return noDefault();
}

int collectDestination(void *list, unsigned, cups_dest_t *record)
{
    const Destination destination = fromCups(record);
    if (!destination.opensDialog())
        static_cast<QList<Destination> *>(list)->append(destination);
    return 1;
}

} // namespace

PrintSystem::~PrintSystem() = default;

CupsPrintSystem::CupsPrintSystem()
{
    cupsSetPasswordCB2(passwordForCups, &m_prompt);
}

CupsPrintSystem::~CupsPrintSystem()
{
    cupsSetPasswordCB2(nullptr, nullptr);
}

void CupsPrintSystem::setPasswordPrompt(PasswordPrompt prompt)
{
    m_prompt = std::move(prompt);
}

std::optional<QList<Destination>> CupsPrintSystem::destinations(PrintError *error)
{
    QList<Destination> list;
    // The server's own queues; searching the network would take a second and is the server's business.
    cupsEnumDests(CUPS_DEST_FLAGS_NONE, 0, nullptr, 0, CUPS_PRINTER_DISCOVERED, collectDestination, &list);
    if (list.isEmpty() && cupsLastError() == IPP_STATUS_ERROR_SERVICE_UNAVAILABLE) {
        *error = lastCupsError(QString());
        return std::nullopt;
    }
    return list;
}

std::optional<Destination> CupsPrintSystem::destination(const QString &name, PrintError *error)
{
    const auto [queue, instance] = splitDestinationName(name);
    // libcups would search the network for a queue that the server does not know, and not say that the server
    // is away.
    if (!name.isEmpty() && !queryQueue(printerUriOfQueue(queue))) {
        *error = lastCupsError(name);
        return std::nullopt;
    }
    const QByteArray queueBytes = queue.toUtf8();
    const QByteArray instanceBytes = instance.toUtf8();
    const CupsDestinationPointer record(
        cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.isEmpty() ? nullptr : queueBytes.constData(),
                         instance.isEmpty() ? nullptr : instanceBytes.constData()));
    if (record) {
        const Destination destination = fromCups(record.get());
        if (!destination.opensDialog())
            return destination;
        *error = name.isEmpty() ? noDefault() : onlyOpensDialog(destination);
        return std::nullopt;
    }
    *error = name.isEmpty() ? noDefaultPrinter() : lastCupsError(name);
    return std::nullopt;
}

std::unique_ptr<PpdDocument> CupsPrintSystem::ppd(const Destination &destination, PrintError *error)
{
    return PpdDocument::ofQueue(destination.queue, error);
}

std::optional<SubmittedJob> CupsPrintSystem::submit(const JobRequest &request, PrintError *error)
{
    return JobSubmitter(request).submit(error);
}

JobStatus CupsPrintSystem::jobStatus(const Destination &destination, int jobId)
{
    return queryJobStatus(destination.printerUri.isEmpty() ? printerUriOfQueue(destination.queue)
                                                           : destination.printerUri.toUtf8(),
                          jobId);
}

} // namespace host
