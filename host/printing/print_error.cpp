// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/print_error.h"

namespace host {

QString PrintError::code() const
{
    switch (kind) {
    case Kind::None:
        return QStringLiteral("none");
    case Kind::NoSuchPrinter:
        return QStringLiteral("no-such-printer");
    case Kind::NoSuchPreset:
        return QStringLiteral("no-such-preset");
    case Kind::NoPrinters:
        return QStringLiteral("no-printers");
    case Kind::ServerAway:
        return QStringLiteral("server-away");
    case Kind::ConnectionLost:
        return QStringLiteral("connection-lost");
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
    case Kind::Cancelled:
        return QStringLiteral("canceled");
    case Kind::Other:
        break;
    }
    return QStringLiteral("failed");
}

} // namespace host
