// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/summary_section.h"

#include "host/session/dialog_session.h"

#include <QCoreApplication>
#include <QLocale>

namespace host {

namespace {

struct SummaryText
{
    Q_DECLARE_TR_FUNCTIONS(SummaryText)
};

} // namespace

QList<SummaryEntry> generalEntries(const GeneralSettings &general)
{
    QList<SummaryEntry> entries;
    entries.append({SummaryText::tr("Copies"), QLocale().toString(general.copies)});
    if (general.copies > 1)
        entries.append(
            {SummaryText::tr("Collate"), general.collate ? SummaryText::tr("On") : SummaryText::tr("Off")});
    entries.append(
        {SummaryText::tr("Pages"), general.pages.isEmpty() ? SummaryText::tr("All") : general.pages});
    return entries;
}

QString keyOfGeneralEntry(const QString &name)
{
    if (name == SummaryText::tr("Copies"))
        return QStringLiteral("copies");
    if (name == SummaryText::tr("Collate"))
        return QStringLiteral("multiple-document-handling");
    return name == SummaryText::tr("Pages") ? QStringLiteral("page-ranges") : QString();
}

SummarySection generalSummary(const DialogSession &session)
{
    SummarySection section{SummaryText::tr("General"), {}};
    section.entries.append({SummaryText::tr("Printer"), session.destination().displayName()});
    section.entries += generalEntries(session.general());
    if (!session.ppd())
        return section;
    for (const QString &keyword : generalOptionKeywords(*session.ppd()) + session.otherKeywords()) {
        const OptionChoice choice = session.ppd()->described(keyword, session.ppd()->markedChoice(keyword));
        if (!choice.choice.isEmpty())
            section.entries.append({choice.optionText, choice.choiceText});
    }
    return section;
}

} // namespace host
