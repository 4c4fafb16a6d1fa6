// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// "What is this?" of a setting that the host shows itself, by the keyword of its option or the name of its
// job attribute, or of another control by a name of this table: one or two sentences of plain text. Null for
// options that only the printer's maker knows.
QString explanationOf(const QString &setting);

} // namespace host
