// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <optional>

namespace host {

// Page ranges as people type them ("1-3, 8, 12-") in the form job options take: ascending, merged, without
// spaces
// ("1-3,8,12-"). Pages count from 1. Null with a message when the text is not a list of pages; the empty
// string, which stands for all pages, stays empty.
std::optional<QString> normalizedPageRanges(const QString &text, QString *error);

} // namespace host
