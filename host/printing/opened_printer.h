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

// A destination and its PPD, from the print server or a file: the data needed to create a dialog. Movable.
struct OpenedPrinter
{
    Destination destination;
    std::unique_ptr<PpdDocument> ppd; // null if the printer has none, or it is broken
    PrintError ppdProblem;            // why an existing PPD could not be used
};

// The requested printer and PPD. A value.
struct PrinterWish
{
    QString printer; // destination name; empty for the user's default, or for none if a PPD file is given
    QString ppdFile; // replaces the queue's PPD
    bool mayBeGone = false; // a missing printer is treated like none
    bool isForAnyone() const { return printer.isEmpty() && ppdFile.isEmpty(); }
};

// These functions query the print system and block. Null with an error if the destination or the PPD file is
// not available; a queue with a broken PPD is opened without it.
std::optional<OpenedPrinter> openPrinter(PrintSystem &system, const PrinterWish &wish, PrintError *error);
std::optional<OpenedPrinter> openPrinter(PrintSystem &system, const Destination &destination,
                                         const QString &ppdFile, PrintError *error);
// For a dialog without a given printer: opens the printer `usedLast`, else the server's default, else the
// first one.
std::optional<OpenedPrinter> openFirstPrinter(PrintSystem &system, const QString &usedLast,
                                              PrintError *error);

// The result of opening a printer.
struct PrinterOpening
{
    std::optional<OpenedPrinter> printer;
    PrintError error; // if there is no printer
};

} // namespace host
