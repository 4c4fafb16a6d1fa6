// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/service/portal_settings.h"
#include "host/session/dialog_session.h"

namespace host {

// Where a dialog begins that a printed document opens: the job options that its application chose.
StartingSettings startingSettings(const NamedValues &jobOptions, int copies);

// Sets what an application wants on a fresh session. What the printer does not have is passed over; what
// cannot be seen in the dialog becomes a notice.
void beginWith(const StartingSettings &start, DialogSession *session);

// What an application may know of a session's settings: nothing that could be part of a code, and nothing of
// a panel's own.
ApplicationChoice choiceForApplication(const DialogSession &session, const QStringList &formats);
// The options of a job whose pages an application makes as they were chosen: all of them are printed.
QList<JobOption> jobOptionsForMadePages(DialogSession *session);
// The paper that a session has chosen; without measures where the printer has no PPD.
Paper paperOf(const DialogSession &session);

} // namespace host
