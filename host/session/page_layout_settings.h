// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"
#include "host/printing/page_settings.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// The page layout, which the filters of the print system apply for every printer. Settings have the names and
// values of their job options, in their canonical spelling. The scale is applied before a job is sent. An
// empty value is the default of each document. The settings are listed in a table in the source file. A
// value.
class PageLayoutSettings
{
public:
    // The print system's defaults.
    PageLayoutSettings();
    // The user's and the queue's defaults among a destination's options. Invalid values are ignored.
    static PageLayoutSettings from(const QMap<QString, QString> &options);
    bool operator==(const PageLayoutSettings &) const = default;

    static QStringList names(); // in the order of display
    // The values offered to the user. set() accepts further values, which are rarely needed.
    static QStringList offered(const QString &name);
    // Whether these settings determine a job option of this name, which may be an older one.
    static bool covers(const QString &name);
    static QString textOf(const QString &name); // localised; empty for other names
    // The keyword of an option with which some PPDs take the place of this setting; empty if there is none.
    static QString keywordFor(const QString &name);
    // The whole numbers that set() accepts for a name; null if it accepts certain values only.
    struct Range
    {
        int least, most;
    };
    static std::optional<Range> rangeOf(const QString &name);
    // A description of the values that set() accepts for a name, for messages.
    static QString takes(const QString &name);

    QString value(const QString &name) const { return m_values.value(name); }
    // Whether the pages are arranged on both sides of sheets that are folded in the middle. The number and
    // the order of the pages per side then have no effect.
    bool isBooklet() const { return value(QStringLiteral("booklet")) == QLatin1String("true"); }
    // The size at which pages are printed, in percent of their natural size.
    int percent() const { return value(naturalScalingName).toInt(); }
    int pagesPerSide() const { return isBooklet() ? 2 : value(QStringLiteral("number-up")).toInt(); }
    // The number of printed sides of a document with this number of pages, before pages are selected.
    int sidesOf(int pages) const;
    bool isReversed() const { return value(QStringLiteral("outputorder")) == QLatin1String("reverse"); }
    // Sets a job option. False, and without a change, if the name is unknown or the value invalid.
    bool set(const QString &name, const QString &value);
    // Restores the print system's default.
    void reset(const QString &name);

    // The settings that differ from `start`, as job options. Also overrides defaults of the destination that
    // the print system adds under another name for the same setting.
    QList<JobOption> jobOptions(const PageLayoutSettings &start,
                                const QMap<QString, QString> &defaults) const;
    // All settings with a value, by job option.
    QMap<QString, QString> values() const;
    // The names of the settings that have an effect and differ from the print system's defaults.
    QStringList changed() const;

private:
    QMap<QString, QString> m_values; // of every setting
};

// The display text of a value of one of these options; empty if there is none.
QString layoutValueText(const QString &name, const QString &value);

// Whether a job option affects the page layout: one of those above, or another that filters support. None of
// them contains a code.
bool isPageOption(const QString &name);

} // namespace host
