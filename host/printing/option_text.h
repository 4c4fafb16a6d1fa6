// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <utility>

namespace host {

// Parses job options in the syntax of lp's command line and of a backend's fifth argument ("sides=one-sided
// Collate media='A4'") into names and values. Malformed text is parsed as far as possible.
QList<std::pair<QString, QString>> parseJobOptions(const QString &text);

// The value of a switch: True, Yes, On, Enabled or an integer other than 0; False, No, Off, Disabled, None or
// 0; in any letter case. Null for anything else.
std::optional<bool> switchValue(const QString &text);

} // namespace host
