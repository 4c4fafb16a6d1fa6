// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/documents.h"
#include "host/printing/print_error.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace host {

// One option of a job as the server is told it.
struct JobOption
{
    enum class Kind {
        Choice, // a choice of the printer's PPD or a setting of a panel: sent as a name, exactly as it stands
        Attribute, // a job option of the print system, such as "copies": sent in the type libcups knows for
                   // it
        Preference // the same, from the user's defaults for the printer: left out where the server adds it
                   // anyway
    };
    QString name;
    QString value;
    Kind kind = Kind::Choice;
    bool operator==(const JobOption &) const = default;
};

// Everything a job is made of.
struct JobRequest
{
    Destination destination;
    QList<Document> documents;
    QString title;
    QList<JobOption> options;
};

// How a job is doing.
struct JobStatus
{
    enum class State { Unknown, Pending, Held, Processing, Stopped, Cancelled, Aborted, Completed };
    State state = State::Unknown;
    bool printerStopped = false; // it waits because its printer has been stopped
    QString message;             // why, for the user; may be empty

    bool isFinal() const { return state >= State::Cancelled; }
    QString text() const; // localised
    QString code() const; // for scripts: the IPP keyword
};

struct SubmittedJob
{
    int id = 0;
    JobStatus status;
    QStringList differences; // localised; where the server accepted something else than was sent
};

} // namespace host
