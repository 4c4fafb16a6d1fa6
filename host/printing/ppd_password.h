// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

struct ppd_file_s;

namespace host {

// A localised sentence with the first character of a password that the format of the PPD ("cupsJobPassword")
// does not allow: its position and what is allowed there, never the character itself. Null if there is none,
// or if the PPD, which may be null, has no format. The length is not checked.
QString passwordProblem(ppd_file_s *ppd, const QString &password);

} // namespace host
