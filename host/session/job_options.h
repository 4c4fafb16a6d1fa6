// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"
#include "host/session/chosen_settings.h"
#include "host/session/general_settings.h"

#include <QList>
#include <QSet>
#include <QVariantMap>

namespace host {

class PpdDocument;
struct Destination;

// What a job's options are made of. Everything is borrowed for one call.
struct JobOptionSources
{
    const Destination &destination;
    PpdDocument *ppd; // null where the printer has none; comes back as it was
    const ChosenSettings &chosen;
    const QSet<QString> &savedOptions; // PPD options that panels have written
    const QVariantMap &printSettings;
    const GeneralSettings &general;
};

// Settings of panels bear names in reverse domain order.
bool isPanelSetting(const QString &name);

// Whether a name that a PPD does not have is one of other PPDs: the print system's own are in small letters.
bool looksLikeOptionOfAPpd(const QString &name);

// What is sent with the job, one option a name. Of several that would bear a name, the user's word comes
// first, then the marks of the PPD and what panels have set, then the user's defaults for the printer.
// Choices are sent that were made explicitly or that are not the PPD's default; with them the standard name
// that a default of the queue would otherwise contradict them under. What is marked and not sent is listed as
// `Shown`, for comparing with the job that the server has made.
QList<JobOption> jobOptions(const JobOptionSources &sources);

} // namespace host
