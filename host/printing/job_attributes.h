// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/cups_handles.h"
#include "host/printing/job.h"

namespace host {

inline constexpr qsizetype maxIppName = 255; // bytes

// Conversion of options to job attributes, and comparison with the attributes that the server stored.

// Keeps only the last value of each option, in the order of the last values.
QList<JobOption> withLastWords(const QList<JobOption> &options);
// Adds an option to the job attributes of a request.
void addJobOption(ipp_t *request, const JobOption &option);
// The differences between `options` and the job that the server stored: localised sentences without values,
// since some are codes. Values are compared according to the type in which they are sent.
QStringList differencesOf(const QList<JobOption> &options, ipp_t *kept);

} // namespace host
