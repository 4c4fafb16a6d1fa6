// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/opened_printer.h"

#include "host/printing/print_system.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace host {

namespace {

struct OpenText
{
    Q_DECLARE_TR_FUNCTIONS(OpenText)
};

// Whether the error is only about this printer. Any other problem would also affect the next printer, and
// delay it again.
bool lacksPrinter(const PrintError &error)
{
    using Kind = PrintError::Kind;
    return error.kind == Kind::NoSuchPrinter || error.kind == Kind::NoSuchPreset ||
           error.kind == Kind::NoPrinters;
}

std::optional<Destination> firstDestination(PrintSystem &system, const QString &usedLast, PrintError *error)
{
    // If a preset has been deleted meanwhile, its printer is used.
    QStringList candidates(usedLast);
    candidates.append(splitDestinationName(usedLast).first);
    candidates.removeDuplicates();
    candidates.removeAll(QString());
    for (const QString &name : std::as_const(candidates)) {
        PrintError gone;
        if (auto destination = system.destination(name, &gone))
            return destination;
        if (!lacksPrinter(gone)) {
            *error = gone;
            return std::nullopt;
        }
    }
    if (auto destination = system.destination(QString(), error))
        return destination;
    if (!lacksPrinter(*error))
        return std::nullopt;
    const auto all = system.destinations(error);
    if (all && !all->isEmpty())
        return system.destination(all->first().name(), error);
    if (all)
        *error = {PrintError::Kind::NoPrinters, OpenText::tr("No printer has been set up.")};
    return std::nullopt;
}

} // namespace

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

std::optional<OpenedPrinter> openFirstPrinter(PrintSystem &system, const QString &usedLast, PrintError *error)
{
    const auto destination = firstDestination(system, usedLast, error);
    return destination ? openPrinter(system, *destination, QString(), error) : std::nullopt;
}

} // namespace host
