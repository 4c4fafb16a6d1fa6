// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"
#include "host/session/page_layout_settings.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace host {

class PpdDocument;

// What every printer can be asked, whatever its driver: the job's copies, pages and how these
// are put on paper. A value.
struct GeneralSettings
{
    int copies = 1; // 1 to maxCopies
    bool collate = true;
    QString pages; // normalised ranges; empty for all
    PageLayoutSettings layout;
    // Where another program makes the pages, it may know which one it shows, and what is selected there.
    enum class Part { Pages, CurrentPage, Selection };
    Part part = Part::Pages;
    bool offersCurrentPage = false;
    bool offersSelection = false;

    static constexpr int maxCopies = 9999;

    bool operator==(const GeneralSettings &) const = default;

    // Which part another program is to print, and what it offers, as others have it.
    void takePart(const GeneralSettings &other);
    // The user's and the queue's defaults among a destination's options. What is no such value is passed
    // over. A PPD's default for collating counts for nothing: it is set to suit the filters, not the user.
    static GeneralSettings from(const QMap<QString, QString> &options);
    // As job options, without the layout; what the print system does anyway is left out.
    QList<JobOption> jobOptions() const;
    // The value of "multiple-document-handling" that says how copies are collated, and no more.
    static QString handling(bool collate);
    // Whether a job option of this name is decided by these settings, the layout aside.
    static bool covers(const QString &name);
};

// The options of the general pane that this PPD has, in the order they are shown: paper size and type, tray,
// two-sided.
QStringList generalOptionKeywords(const PpdDocument &ppd);

} // namespace host
