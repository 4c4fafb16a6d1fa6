// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace host {

class DialogSession;

using SummaryEntry = std::pair<QString, QString>; // name and value

// A section of the summary: the settings of one page. A value.
struct SummarySection
{
    QString title;
    QList<SummaryEntry> entries;
    int panel = -1; // the panel; otherwise a page as returned by pageOf()
};

// The settings of the general page, without those that a panel shows.
SummarySection generalSummary(const DialogSession &session);
// The options of the PPD that no other page shows. May be empty.
SummarySection moreSummary(const DialogSession &session);
// The settings of the Job page that differ from the defaults. May be empty.
SummarySection jobSummary(const DialogSession &session);
// The settings of the Print Mode page, without their values. May be empty.
SummarySection printModeSummary(const DialogSession &session);
// The job option of a general setting, by its display name; empty if there is none.
QString keyOfGeneralEntry(const QString &name);

} // namespace host
