// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/print_error.h"

#include <QCoreApplication>

#include <cups/cups.h>

namespace host {

namespace {

struct PrintErrorText
{
    Q_DECLARE_TR_FUNCTIONS(PrintErrorText)
};

} // namespace

QString PrintError::code() const
{
    switch (kind) {
    case Kind::None:
        return QStringLiteral("none");
    case Kind::NoSuchPrinter:
        return QStringLiteral("no-such-printer");
    case Kind::NoPrinters:
        return QStringLiteral("no-printers");
    case Kind::ServerAway:
        return QStringLiteral("server-away");
    case Kind::QueueRejecting:
        return QStringLiteral("queue-rejecting");
    case Kind::NotAuthorised:
        return QStringLiteral("not-authorised");
    case Kind::FileMissing:
        return QStringLiteral("file-missing");
    case Kind::NoPermission:
        return QStringLiteral("no-permission");
    case Kind::EmptyDocument:
        return QStringLiteral("empty-document");
    case Kind::UnsupportedFormat:
        return QStringLiteral("unsupported-format");
    case Kind::BrokenPpd:
        return QStringLiteral("broken-ppd");
    case Kind::BadValue:
        return QStringLiteral("bad-value");
    case Kind::Other:
        break;
    }
    return QStringLiteral("failed");
}

PrintError lastCupsError(const QString &printer)
{
    using Kind = PrintError::Kind;
    const QString server = QString::fromUtf8(cupsServer());
    const QString detail = QString::fromUtf8(cupsLastErrorString());
    switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_FOUND:
        if (!printer.isEmpty())
            return {Kind::NoSuchPrinter, PrintErrorText::tr("There is no printer called “%1”.").arg(printer)};
        return {Kind::NoPrinters, PrintErrorText::tr("No printer has been set up.")};
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
    case IPP_STATUS_ERROR_TIMEOUT:
    case IPP_STATUS_ERROR_CUPS_UPGRADE_REQUIRED:
    case IPP_STATUS_ERROR_CUPS_PKI:
        return {Kind::ServerAway, PrintErrorText::tr("The print server %1 cannot be reached.").arg(server)};
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
        return {Kind::QueueRejecting,
                PrintErrorText::tr("The printer “%1” is not accepting jobs at the moment.").arg(printer)};
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
    case IPP_STATUS_ERROR_ACCOUNT_AUTHORIZATION_FAILED:
    case IPP_STATUS_ERROR_ACCOUNT_CLOSED:
    case IPP_STATUS_ERROR_ACCOUNT_LIMIT_REACHED:
        return {Kind::NotAuthorised,
                PrintErrorText::tr("You are not allowed to print to “%1” (%2).").arg(printer, detail)};
    case IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED:
        return {Kind::UnsupportedFormat,
                PrintErrorText::tr("The printer “%1” cannot print documents of this type.").arg(printer)};
    default:
        return {Kind::Other, PrintErrorText::tr("The print server reports: %1").arg(detail)};
    }
}

} // namespace host
