// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace host {

class DialogSession;

// Applies the choices of one session to the session of another printer, which the user has selected: in the
// order in which they were made, through its PPD and panels. A notice lists the settings that the new printer
// does not accept, protective ones first; they stay recorded for the next printer. Panels may query their
// devices.
void carryOver(const DialogSession &from, DialogSession *to);

} // namespace host
