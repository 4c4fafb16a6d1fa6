// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/service/portal_settings.h"
#include "host/session/dialog_session.h"

namespace host {

// The initial settings of a dialog for a printed document, from the application's job options.
StartingSettings startingSettings(const NamedValues &jobOptions, int copies);

// Applies an application's settings to a new session. Settings that the printer does not have are ignored;
// settings that the policy forbids, and values of the page layout that are refused, become a notice.
void beginWith(const StartingSettings &start, DialogSession *session);

// The settings of a session that are returned to the application: nothing that may be part of a code, and no
// settings of panels.
ApplicationChoice choiceForApplication(const DialogSession &session, const QStringList &formats);
// The options of a job whose selected pages are produced by an application: all of them are printed.
QList<JobOption> jobOptionsForMadePages(const DialogSession &session);
// The size of the pages that the options of a job ask for, in percent.
int percentOf(const QList<JobOption> &options);
// The paper selected in a session; without dimensions if the printer has no PPD.
Paper paperOf(const DialogSession &session);

} // namespace host
