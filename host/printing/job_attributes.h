// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/cups_handles.h"
#include "host/printing/job.h"

namespace host {

inline constexpr qsizetype maxIppName = 255; // bytes

// How options become attributes of a job, and whether the server kept them.

// One option a name, in the order of their last words: what was said last counts.
QList<JobOption> withLastWords(const QList<JobOption> &options);
// Adds an option to the job attributes of a request.
void addJobOption(ipp_t *request, const JobOption &option);
// Where the job that the server keeps says something else than `options`: localised sentences without the
// values, of which some are codes. Values are compared by what they mean in the type they are sent in.
QStringList differencesOf(const QList<JobOption> &options, ipp_t *kept);

} // namespace host
