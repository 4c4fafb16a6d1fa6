// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <optional>

namespace host {

// Converts page ranges as typed by a user ("1-3, 8, 12-") to the form of job options: ascending, merged,
// without spaces ("1-3,8,12-"). Pages are counted from 1. Null with a message if the text is not a list of
// pages; an empty text, which means all pages, stays empty.
std::optional<QString> normalizedPageRanges(const QString &text, QString *error);

} // namespace host
