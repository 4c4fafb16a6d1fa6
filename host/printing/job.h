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

// One option of a job as it is sent to the server.
struct JobOption
{
    enum class Kind {
        Choice, // a choice of the printer's PPD or a setting of a panel: sent unchanged as a name
        // a job option of the print system, such as "copies": sent in the type that libcups has for it
        Attribute,
        // the same, but from the user's defaults for the printer: left out if the server adds it to each job
        Preference,
        // not sent: what the printer does by default, as shown to the user; the job must not contradict it
        Shown
    };
    QString name;
    QString value;
    Kind kind = Kind::Choice;
    bool operator==(const JobOption &) const = default;
};

// The names of the job options for private printing with any printer (PWG 5100.11). The password is sent as
// an operation attribute, which the server does not return.
extern const QString passwordName;           // job-password
extern const QString passwordEncryptionName; // job-password-encryption
extern const QString accountName;            // job-account-id
extern const QString accountUserName;        // job-accounting-user-id

// All data of a job.
struct JobRequest
{
    Destination destination;
    QList<Document> documents;
    QString title;
    QList<JobOption> options;
};

// The state of a job.
struct JobStatus
{
    // Gone: the server no longer has the job, so its outcome is unknown.
    enum class State { Unknown, Pending, Held, Processing, Stopped, Cancelled, Aborted, Completed, Gone };
    State state = State::Unknown;
    bool printerStopped = false; // it is waiting because its printer was stopped
    QString message;             // the reason, for the user; may be empty
    QString heldUntil;           // "job-hold-until" of a held job if it is a time; otherwise empty
    bool isHeldByUser = false;   // held until it is released, not until a certain time
    int printedPages = 0;        // so far; 0 if the printer does not count pages

    bool isFinal() const { return state >= State::Cancelled; }
    // Whether it needs a user's action to continue.
    bool needsAttention() const;
    QString text() const; // localised
    QString code() const; // for scripts: the IPP keyword
};

// Actions of the user on an accepted job.
enum class JobAction { Cancel, Hold, Release };

struct SubmittedJob
{
    int id = 0;
    JobStatus status;
    // localised; differences between the options sent and those that the server accepted
    QStringList differences;
};

// The outcome of a submission. A value.
struct Submission
{
    enum class Outcome {
        Accepted, // the server has the complete job
        Rejected, // it will not be printed, or not any further
        Unknown   // the response was lost: the job may be printed, or remain without its documents
    };
    Outcome outcome = Outcome::Rejected;
    SubmittedJob job; // the ID is 0 if no job was created
    PrintError error; // why it was not accepted, or why the outcome is unknown

    bool isAccepted() const { return outcome == Outcome::Accepted; }
    QString code() const; // for scripts
};

// Observes a submission. Both functions are called often, on the sending thread; empty functions are not
// called.
struct SubmissionWatch
{
    std::function<void(qint64 sent, qint64 total)> progress; // bytes of all documents
    // If it returns true, the job is canceled on the server and the submission ends; the error reports a
    // failed cancellation.
    std::function<bool()> isCancelled;
};

} // namespace host
