// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"
#include "host/session/page_layout_settings.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <utility>

namespace host {

class PpdDocument;

// A setting and its value, localised.
using SettingWords = std::pair<QString, QString>;

// The settings that every printer has, whatever its driver: copies, page range and page layout of the job.
// Settings are named by their job options; the source file lists them in a table, as PageLayoutSettings does
// for the layout. A value.
struct GeneralSettings
{
    int copies = 1; // 1 to maxCopies
    bool collate = true;
    QString pages; // normalized ranges; empty for all
    PageLayoutSettings layout;
    // If another program produces the pages, it may offer its current page and its selection. `pages` is then
    // empty.
    enum class Part { Pages, CurrentPage, Selection };
    Part part = Part::Pages;
    bool offersCurrentPage = false;
    bool offersSelection = false;

    static constexpr int maxCopies = 9999;

    bool operator==(const GeneralSettings &) const = default;

    // The user's and the queue's defaults among a destination's options. Ignores invalid values, and the
    // PPD's default for collation, which is chosen for the filters rather than for the user.
    static GeneralSettings from(const QMap<QString, QString> &options);
    // As job options, without the layout; defaults of the print system are left out.
    QList<JobOption> jobOptions() const;
    // The value of "multiple-document-handling" that only specifies collation.
    static QString handling(bool collate);
    // The value of "page-ranges" for a part that another program offers. It is not sent with a job.
    static QString partName(Part part);

    // The names of the settings without the layout, in the order of display.
    static QStringList names();
    // The same, followed by the names of the layout settings.
    static QStringList allNames() { return names() + PageLayoutSettings::names(); }
    // Whether these settings, without the layout, determine a job option of this name, or a PPD option.
    static bool covers(const QString &name);
    // The name of the job option for another name of a setting; other names are unchanged.
    static QString jobOptionOf(const QString &name);
    // The following functions also accept the names of the layout.
    static QString textOf(const QString &name); // localised; empty for other names
    QString value(const QString &name) const;
    // The value for display; null if the setting has no effect.
    QString valueText(const QString &name) const;
    // Sets a value. An empty value restores a default of each document. Returns a localised problem, without
    // a change, if the value is not valid; null if it is.
    QString set(const QString &name, const QString &value);
    // All settings with a value.
    QMap<QString, QString> values() const;
    // The settings that differ from the print system's defaults, and those that are always of interest.
    QList<SettingWords> inWords() const;
};

// The options of the general page that this PPD has, in display order: paper size and type, tray, two-sided,
// color.
QStringList generalOptionKeywords(const PpdDocument &ppd);
// The option of a PPD that selects color or black and white; null if there is none. A panel may also show it.
QString colorOptionKeyword(const PpdDocument &ppd);

} // namespace host
