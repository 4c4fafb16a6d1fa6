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

SummarySection generalSummary(const DialogSession &session)
{
    const GeneralSettings &general = session.general();
    SummarySection section{SummaryText::tr("General"), {}};
    section.entries.append({SummaryText::tr("Printer"), session.destination().displayName()});
    section.entries.append({SummaryText::tr("Copies"), QLocale().toString(general.copies)});
    if (general.copies > 1)
        section.entries.append(
            {SummaryText::tr("Collate"), general.collate ? SummaryText::tr("On") : SummaryText::tr("Off")});
    QString pages = general.pages.isEmpty() ? SummaryText::tr("All") : general.pages;
    if (general.part != GeneralSettings::Part::Pages)
        pages = general.part == GeneralSettings::Part::CurrentPage ? SummaryText::tr("Current page")
                                                                   : SummaryText::tr("Selection");
    section.entries.append({SummaryText::tr("Pages"), pages});
    for (const auto &[name, value] : general.layout.inWords())
        section.entries.append({name, value});
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
