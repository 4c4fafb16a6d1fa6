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

// The settings that every printer has, whatever its driver: copies, page range and page layout of the job. A
// value.
struct GeneralSettings
{
    int copies = 1; // 1 to maxCopies
    bool collate = true;
    QString pages; // normalized ranges; empty for all
    PageLayoutSettings layout;
    // If another program produces the pages, it may offer its current page and its selection.
    enum class Part { Pages, CurrentPage, Selection };
    Part part = Part::Pages;
    bool offersCurrentPage = false;
    bool offersSelection = false;

    static constexpr int maxCopies = 9999;

    bool operator==(const GeneralSettings &) const = default;

    // Takes over the part to print, and the parts offered by the other program.
    void takePart(const GeneralSettings &other);
    // The user's and the queue's defaults among a destination's options. Ignores invalid values, and the
    // PPD's default for collation, which is chosen for the filters rather than for the user.
    static GeneralSettings from(const QMap<QString, QString> &options);
    // As job options, without the layout; defaults of the print system are left out.
    QList<JobOption> jobOptions() const;
    // The value of "multiple-document-handling" that only specifies collation.
    static QString handling(bool collate);
    // Whether these settings, without the layout, determine a job option of this name.
    static bool covers(const QString &name);
};

// The options of the general page that this PPD has, in display order: paper size and type, tray, two-sided,
// color.
QStringList generalOptionKeywords(const PpdDocument &ppd);
// The option of a PPD that selects color or black and white; null if there is none. A panel may also show it.
QString colorOptionKeyword(const PpdDocument &ppd);

} // namespace host
