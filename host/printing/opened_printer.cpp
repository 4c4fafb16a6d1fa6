// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/opened_printer.h"

#include "host/printing/print_system.h"

#include <QFileInfo>

namespace host {

std::optional<OpenedPrinter> openPrinter(PrintSystem &system, const PrinterWish &wish, PrintError *error)
{
    if (wish.printer.isEmpty() && !wish.ppdFile.isEmpty()) {
        Destination nowhere;
        nowhere.info = QFileInfo(wish.ppdFile).fileName();
        return openPrinter(system, nowhere, wish.ppdFile, error);
    }
    const auto destination = system.destination(wish.printer, error);
    return destination ? openPrinter(system, *destination, wish.ppdFile, error) : std::nullopt;
}

std::optional<OpenedPrinter> openPrinter(PrintSystem &system, const Destination &destination,
                                         const QString &ppdFile, PrintError *error)
{
    OpenedPrinter opened{destination, nullptr, {}};
    opened.ppd = ppdFile.isEmpty() ? system.ppd(destination, &opened.ppdProblem)
                                   : PpdDocument::open(ppdFile, &opened.ppdProblem);
    const bool isBrokenPpd = opened.ppdProblem.kind == PrintError::Kind::BrokenPpd && ppdFile.isEmpty();
    if (!opened.ppd && opened.ppdProblem && !isBrokenPpd) {
        *error = opened.ppdProblem;
        return std::nullopt;
    }
    return opened;
}

} // namespace host
