// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/summary_section.h"

#include "host/session/dialog_session.h"
#include "host/session/job_settings.h"
#include "host/session/session_changes.h"

#include <QCoreApplication>

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

void addJobSetting(const DialogSession &session, const QString &name, SummarySection *section)
{
    const QString value = jobSettingValue(session, name);
    if (value != jobSettingValue({}, {}, name))
        section->entries.append({jobSettingText(name), jobValueText(name, value)});
}

} // namespace

QString keyOfGeneralEntry(const QString &name)
{
    for (const QString &key : GeneralSettings::allNames()) {
        if (name == GeneralSettings::textOf(key))
            return key;
    }
    return {};
}

SummarySection generalSummary(const DialogSession &session)
{
    SummarySection section{SummaryText::tr("General"), {}};
    section.entries.append({SummaryText::tr("Printer"), session.destination().displayName()});
    section.entries += session.general().inWords();
    QStringList keywords = session.ppd() ? generalOptionKeywords(*session.ppd()) : QStringList();
    keywords.removeIf([&](const QString &keyword) { return session.panels().ofKeyword(keyword) >= 0; });
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
        if (!printModeNames().contains(name))
            addJobSetting(session, name, &section);
    }
    return section;
}

SummarySection printModeSummary(const DialogSession &session)
{
    SummarySection section{SummaryText::tr("Print Mode"), {}, printModePage};
    for (const QString &name : printModeNames()) {
        if (takesPrintMode(session.destination(), name))
            addJobSetting(session, name, &section);
    }
    return section;
}

} // namespace host
