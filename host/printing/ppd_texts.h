// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

struct ppd_file_s;

namespace host {

// Puts the texts of groups, options and choices into the language of the user, as ppdLocalize() does, and
// mends what that leaves behind: an empty translation gives way to the PPD's own text, and a character that
// did not fit into libcups's fields goes as a whole.
void localizePpdTexts(ppd_file_s *ppd);

} // namespace host
