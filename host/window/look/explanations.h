// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// The "What's This?" text of a setting of the host, by the keyword of its option or the name of its job
// attribute, or of another control by a name in this table: one or two sentences of plain text. Null for
// options that only the printer's manufacturer can explain.
QString explanationOf(const QString &setting);

} // namespace host
