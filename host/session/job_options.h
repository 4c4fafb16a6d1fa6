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

// The sources of a job's options. Everything is borrowed for one call.
struct JobOptionSources
{
    const Destination &destination;
    PpdDocument *ppd; // null if the printer has none; unchanged after the call
    const ChosenSettings &chosen;
    const QSet<QString> &savedOptions; // PPD options that panels have written
    const QVariantMap &printSettings;
    const GeneralSettings &general;
};

// Whether a name belongs to a setting of a panel, which is in reverse domain order.
bool isPanelSetting(const QString &name);

// Whether a name that the PPD does not have looks like the keyword of a PPD option: it begins with a capital
// letter, unlike the names of the print system.
bool looksLikeOptionOfAPpd(const QString &name);

// The options sent with the job, one per name. If there are several values for a name, the user's choice
// takes precedence, then the marks of the PPD and the values set by panels, then the user's defaults for the
// printer. Choices are sent if they were made explicitly or are not the PPD's default, together with the
// standard name if a default of the queue would otherwise contradict them. Marks that are not sent are listed
// as `Shown`, for comparison with the job that the server has created.
QList<JobOption> jobOptions(const JobOptionSources &sources);

} // namespace host
