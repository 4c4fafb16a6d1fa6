// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/summary_section.h"

#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"
#include "host/session/session_changes.h"

#include <QCoreApplication>
#include <QLocale>

namespace host {

namespace {

struct SummaryText
{
    Q_DECLARE_TR_FUNCTIONS(SummaryText)
};

void addOptions(const DialogSession &session, const QStringList &keywords, SummarySection *section)
{
    for (const QString &keyword : keywords) {
        const OptionChoice choice = session.ppd()->described(keyword, session.ppd()->markedChoice(keyword));
        const bool isHidden = session.isSecret(keyword) && !session.ppd()->option(keyword)->custom;
        if (!choice.choice.isEmpty())
            section->entries.append({choice.optionText, isHidden ? hiddenValue() : choice.choiceText});
    }
}

} // namespace

QList<SummaryEntry> generalEntries(const GeneralSettings &general, bool withUsual)
{
    QList<SummaryEntry> entries;
    entries.append({SummaryText::tr("Copies"), QLocale().toString(general.copies)});
    if (general.copies > 1)
        entries.append(
            {SummaryText::tr("Collate"), general.collate ? SummaryText::tr("On") : SummaryText::tr("Off")});
    QString pages = general.pages.isEmpty() ? SummaryText::tr("All") : general.pages;
    if (general.part != GeneralSettings::Part::Pages)
        pages = general.part == GeneralSettings::Part::CurrentPage ? SummaryText::tr("Current page")
                                                                   : SummaryText::tr("Selection");
    entries.append({SummaryText::tr("Pages"), pages});
    for (const PageLayoutSettings::Words &words : general.layout.inWords(withUsual))
        entries.append({words.name, words.value});
    return entries;
}

QString keyOfGeneralEntry(const QString &name)
{
    if (name == SummaryText::tr("Copies"))
        return QStringLiteral("copies");
    if (name == SummaryText::tr("Collate"))
        return QStringLiteral("multiple-document-handling");
    if (name == SummaryText::tr("Pages"))
        return QStringLiteral("page-ranges");
    for (const PageLayoutSettings::Words &words : PageLayoutSettings().inWords(true)) {
        if (name == words.name)
            return words.key;
    }
    return {};
}

SummarySection generalSummary(const DialogSession &session)
{
    SummarySection section{SummaryText::tr("General"), {}};
    section.entries.append({SummaryText::tr("Printer"), session.destination().displayName()});
    section.entries += generalEntries(session.general(), false);
    QStringList keywords = session.ppd() ? generalOptionKeywords(*session.ppd()) : QStringList();
    keywords.removeIf([&](const QString &keyword) { return session.panelOfKeyword(keyword) >= 0; });
    addOptions(session, keywords, &section);
    return section;
}

SummarySection moreSummary(const DialogSession &session)
{
    SummarySection section{SummaryText::tr("More Options"), {}};
    addOptions(session, session.otherKeywords(), &section);
    return section;
}

SummarySection jobSummary(const DialogSession &session)
{
    SummarySection section{SummaryText::tr("Job"), {}, jobPage};
    for (const QString &name : jobSettingNames()) {
        const QString value = jobSettingValue(session, name);
        if (value != jobSettingValue({}, {}, name))
            section.entries.append({jobSettingText(name), jobValueText(name, value)});
    }
    return section;
}

} // namespace host
