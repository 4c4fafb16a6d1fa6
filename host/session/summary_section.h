// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

#include <utility>

namespace host {

class DialogSession;

// A part of the summary: what one pane stands at. A value.
struct SummarySection
{
    QString title;
    QList<std::pair<QString, QString>> entries;
};

// What every printer can be asked, and the options of the PPD that no panel shows.
SummarySection generalSummary(const DialogSession &session);

} // namespace host
