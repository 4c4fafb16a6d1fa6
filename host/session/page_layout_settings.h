// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/job.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

namespace host {

// The page layout, which the filters of the print system apply for every printer. Values are those of the job
// options, in their canonical spelling. A value.
struct PageLayoutSettings
{
    int pagesPerSide = 1;                    // "number-up": one of pagesPerSideChoices()
    QString order = QStringLiteral("lrtb");  // "number-up-layout"
    QString border = QStringLiteral("none"); // "page-border"
    // "orientation-requested": "3" portrait, "4" landscape, "5" and "6" rotated from these; empty for that of
    // each document
    QString orientation;
    QString pageSet = QStringLiteral("all"); // "page-set": selects from the sides that would be printed
    bool isReversed = false;                 // "outputorder": whether the last page comes first
    QString scaling; // "print-scaling"; empty for the default of each kind of document

    bool operator==(const PageLayoutSettings &) const = default;

    static const QList<int> &pagesPerSideChoices();
    static QStringList orders();
    static QStringList borders();
    static QStringList pageSets();

    // The user's and the queue's defaults among a destination's options. Invalid values are ignored.
    static PageLayoutSettings from(const QMap<QString, QString> &options);
    // Sets a job option. False, and without a change, if the name is unknown or the value invalid.
    bool set(const QString &name, const QString &value);
    // A description of the values that set() accepts for a name, for messages.
    static QString takes(const QString &name);
    // Takes over the settings of `other` that differ from `start`.
    void takeChanges(const PageLayoutSettings &start, const PageLayoutSettings &other);
    // The settings that differ from `start`, as job options. Also overrides defaults of the destination that
    // the print system adds under another name for the same setting.
    QList<JobOption> jobOptions(const PageLayoutSettings &start,
                                const QMap<QString, QString> &defaults) const;
    // All settings with a value, by job option.
    QMap<QString, QString> values() const;
    struct Words
    {
        QString key; // name of the job option
        QString name;
        QString value;
    };
    // The settings that differ from the print system's defaults, or all of them, localised.
    QList<Words> inWords(bool withUsual) const;

    // Whether these settings determine a job option of this name.
    static bool covers(const QString &name);
};

// The display text of a value of one of these options; empty if there is none.
QString layoutValueText(const QString &name, const QString &value);

// Whether a job option affects the page layout: one of those above, or another that filters support. None of
// them contains a code.
bool isPageOption(const QString &name);

} // namespace host
