// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/job.h"

#include <QCoreApplication>

#include <array>

namespace host {

const QString passwordName = QStringLiteral("job-password");
const QString passwordEncryptionName = QStringLiteral("job-password-encryption");
const QString accountName = QStringLiteral("job-account-id");
const QString accountUserName = QStringLiteral("job-accounting-user-id");

namespace {

struct JobText
{
    Q_DECLARE_TR_FUNCTIONS(JobText)
};

} // namespace

QString JobStatus::text() const
{
    switch (state) {
    case State::Pending:
        return printerStopped ? JobText::tr("waiting: the printer has been stopped") : JobText::tr("waiting");
    case State::Held:
        return JobText::tr("on hold");
    case State::Processing:
        return printerStopped ? JobText::tr("waiting: the printer has been stopped")
                              : JobText::tr("printing");
    case State::Stopped:
        return JobText::tr("stopped");
    case State::Cancelled:
        return JobText::tr("canceled");
    case State::Aborted:
        return JobText::tr("aborted by the print system");
    case State::Completed:
        return JobText::tr("done");
    case State::Gone:
        return JobText::tr(
            "the print server no longer knows it. It may have been printed; look at the printer.");
    case State::Unknown:
        break;
    }
    return JobText::tr("unknown");
}

bool JobStatus::needsAttention() const
{
    return !isFinal() && (printerStopped || state == State::Stopped);
}

QString JobStatus::code() const
{
    static const std::array<const char *, 9> codes = {
        "unknown",  "pending", "pending-held", "processing", "processing-stopped",
        "canceled", "aborted", "completed",    "unknown"};
    return QLatin1String(codes.at(static_cast<size_t>(state)));
}

QString Submission::code() const
{
    static const std::array<const char *, 3> codes = {"accepted", "rejected", "unknown"};
    return QLatin1String(codes.at(static_cast<size_t>(outcome)));
}

} // namespace host
