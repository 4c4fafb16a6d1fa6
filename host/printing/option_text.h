// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <utility>

namespace host {

// Job options in the form of lp's command line and a backend's fifth argument ("sides=one-sided Collate
// media='A4'"), by name and value. Text that is no such list gives what can be made of it.
QList<std::pair<QString, QString>> parseJobOptions(const QString &text);

// What a switch takes: True, Yes, On, Enabled or a whole number other than 0; False, No, Off, Disabled, None
// or 0; whatever the case. Null for everything else.
std::optional<bool> switchValue(const QString &text);

} // namespace host
