// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace host {

class DialogSession;
struct GeneralSettings;

using SummaryEntry = std::pair<QString, QString>; // name and value

// A part of the summary: what one pane stands at. A value.
struct SummarySection
{
    QString title;
    QList<SummaryEntry> entries;
    int panel = -1; // whose part it is; -1 for the host's own
};

// What every printer can be asked, and the options of the PPD that no panel shows.
SummarySection generalSummary(const DialogSession &session);
// Of these, what is no option of the PPD.
QList<SummaryEntry> generalEntries(const GeneralSettings &general, bool withUsual);
// The print system's name for one of them, by its name here; empty for a setting that has none.
QString keyOfGeneralEntry(const QString &name);

} // namespace host
