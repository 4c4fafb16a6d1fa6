// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/ppd_document.h"
#include "host/printing/print_error.h"

#include <memory>
#include <optional>

namespace host {

class PrintSystem;

// A destination and its PPD, as the print server or a file gives them: all that has to be asked before a
// dialog can be made. A value that is handed on.
struct OpenedPrinter
{
    Destination destination;
    std::unique_ptr<PpdDocument> ppd; // null where the printer has none, or a broken one
    PrintError ppdProblem;            // why a PPD that is there could not be used
};

// Which printer, and which PPD. A value.
struct PrinterWish
{
    QString printer; // destination name; empty for the user's default, or for none where there is a PPD file
    QString ppdFile; // stands in for the queue's own
    bool mayBeGone = false; // a printer that is not there any more is as good as none
    bool isForAnyone() const { return printer.isEmpty() && ppdFile.isEmpty(); }
};

// All of these ask the print system, and block. Null with an error when the destination or the PPD file
// cannot be had; a queue whose PPD is broken is opened without one.
std::optional<OpenedPrinter> openPrinter(PrintSystem &system, const PrinterWish &wish, PrintError *error);
std::optional<OpenedPrinter> openPrinter(PrintSystem &system, const Destination &destination,
                                         const QString &ppdFile, PrintError *error);
// For a dialog that was not told which: the printer of that name, which was used last, else the server's
// default, else the first there is.
std::optional<OpenedPrinter> openFirstPrinter(PrintSystem &system, const QString &usedLast,
                                              PrintError *error);

// What came of opening a printer.
struct PrinterOpening
{
    std::optional<OpenedPrinter> printer;
    PrintError error; // when there is no printer
};

} // namespace host
