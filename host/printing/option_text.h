// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace host {

// Job options in the form of lp's command line and a backend's fifth argument ("sides=one-sided Collate
// media='A4'"), by name and value. Text that is no such list gives what can be made of it.
QList<std::pair<QString, QString>> parseJobOptions(const QString &text);

} // namespace host
