// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/destination.h"
#include "host/printing/documents.h"
#include "host/printing/print_error.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace host {

// One option of a job as the server is told it.
struct JobOption
{
    enum class Kind {
        Choice, // a choice of the printer's PPD or a setting of a panel: sent as a name, exactly as it stands
        Attribute,  // a job option of the print system, such as "copies": sent in the type libcups knows for
                    // it
        Preference, // the same, from the user's defaults for the printer: left out where the server adds it
                    // anyway
        Shown // not sent: what the printer does by itself, as the user has seen it; the job must not say
              // otherwise
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
    // Gone: the server no longer knows the job, so its end is not known.
    enum class State { Unknown, Pending, Held, Processing, Stopped, Cancelled, Aborted, Completed, Gone };
    State state = State::Unknown;
    bool printerStopped = false; // it waits because its printer has been stopped
    QString message;             // why, for the user; may be empty
    bool isHeldByUser = false;   // on hold until it is released, not until a time
    int printedPages = 0;        // so far; 0 where the printer does not count

    bool isFinal() const { return state >= State::Cancelled; }
    // It does not go on by itself.
    bool needsSomebody() const;
    QString text() const; // localised
    QString code() const; // for scripts: the IPP keyword
};

// What its user can do to a job that has been accepted.
enum class JobAction { Cancel, Hold, Release };

struct SubmittedJob
{
    int id = 0;
    JobStatus status;
    QStringList differences; // localised; where the server accepted something else than was sent
};

// What became of a job that was to be sent. A value.
struct Submission
{
    enum class Outcome {
        Accepted, // the server has all of it
        Rejected, // it will not print, or no further
        Unknown   // the server's answer was lost: it may print, or be left there without its documents
    };
    Outcome outcome = Outcome::Rejected;
    SubmittedJob job; // its id is 0 where none was made
    PrintError error; // why it was not accepted, or why that is not known

    bool isAccepted() const { return outcome == Outcome::Accepted; }
    QString code() const; // for scripts
};

// Observes a job while it is sent. Both functions are called often, on the thread that sends; empty ones are
// not called.
struct SubmissionWatch
{
    std::function<void(qint64 sent, qint64 total)> progress; // bytes of all documents together
    // True ends the submission: the job is cancelled at the server, and the error says so if that failed.
    std::function<bool()> isCancelled;
};

} // namespace host
