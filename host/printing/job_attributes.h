// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/cups_handles.h"
#include "host/printing/job.h"

namespace host {

inline constexpr qsizetype maxIppName = 255; // bytes

// Conversion of options to job attributes, and comparison with the attributes that the server stored.

// Keeps only the last value of each option, in the order of the last values.
QList<JobOption> lastOfEach(const QList<JobOption> &options);
// Adds the password among the options, if there is one, as an operation attribute. It is encrypted with the
// method among the options, else with SHA-256 if that is one of the methods `offered` by the queue. Call
// before adding job attributes.
void addPassword(ipp_t *request, const QList<JobOption> &options, const QStringList &offered);
// Adds an option to the job attributes of a request; does nothing for the password and its encryption.
void addJobOption(ipp_t *request, const JobOption &option);
// The differences between `options` and the job that the server stored: localised sentences without values,
// since some are codes. Values are compared according to the type in which they are sent.
QStringList differencesOf(const QList<JobOption> &options, ipp_t *kept);

} // namespace host
