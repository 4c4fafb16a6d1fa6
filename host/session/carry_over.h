// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

namespace host {

class DialogSession;

// Makes what was chosen in one session in another, whose printer the user has turned to: in the order it was
// set, through the PPD and the panels there. What they do not take becomes a notice that names it, what
// protects the user first, and stays noted for the printer after. Panels may have to ask their device.
void carryOver(const DialogSession &from, DialogSession *to);

} // namespace host
