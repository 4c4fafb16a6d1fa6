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

// How the pages of a document are put on paper, whatever the printer is: the filters of the print system do
// it. Values are those of the job options, in their usual spelling. A value.
struct PageLayoutSettings
{
    int pagesPerSide = 1;                    // "number-up": one of pagesPerSideChoices()
    QString order = QStringLiteral("lrtb");  // "number-up-layout"
    QString border = QStringLiteral("none"); // "page-border"
    QString orientation; // "orientation-requested": "3" upright, "4" landscape, "5" and "6" turned from
                         // these; empty for that of each document
    QString pageSet = QStringLiteral("all"); // "page-set": of the sides that would be printed
    bool isReversed = false;                 // "outputorder": the last page first
    QString scaling; // "print-scaling"; empty for what each kind of document gets by itself

    bool operator==(const PageLayoutSettings &) const = default;

    static const QList<int> &pagesPerSideChoices();
    static QStringList orders();
    static QStringList borders();
    static QStringList pageSets();

    // The user's and the queue's defaults among a destination's options. What is no such value is passed
    // over.
    static PageLayoutSettings from(const QMap<QString, QString> &options);
    // Takes a job option's value. False, and nothing changed, when the name is no such option or does not
    // take it.
    bool set(const QString &name, const QString &value);
    // What set() takes for a name, for messages.
    static QString takes(const QString &name);
    // Takes over what differs from `start` in `other`.
    void takeChanges(const PageLayoutSettings &start, const PageLayoutSettings &other);
    // What differs from `start`, as job options. Defaults of the destination that the print system adds under
    // another name for the same are contradicted.
    QList<JobOption> jobOptions(const PageLayoutSettings &start,
                                const QMap<QString, QString> &defaults) const;
    // What is set, by job option; without those that have no value.
    QMap<QString, QString> values() const;
    struct Words
    {
        QString key; // the job option
        QString name;
        QString value;
    };
    // Every setting that is not the print system's own default, or all of them, in words.
    QList<Words> inWords(bool withUsual) const;

    // Whether a job option of this name is decided by these settings.
    static bool covers(const QString &name);
};

// What people call a value of one of these options; empty for none.
QString layoutValueText(const QString &name, const QString &value);

// Whether a job option says how pages are put on paper: one of those above, or another that filters know.
// None of them holds a code.
bool isPageOption(const QString &name);

} // namespace host
