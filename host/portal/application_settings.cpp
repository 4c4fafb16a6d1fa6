// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/portal/application_settings.h"

#include "host/printing/option_text.h"
#include "host/printing/page_ranges.h"
#include "host/session/setting_keys.h"

#include <algorithm>

namespace host {

namespace {

const QString pageSize = QStringLiteral("PageSize");

void mark(const QString &name, const QString &value, DialogSession *session)
{
    PpdDocument *ppd = session->ppd();
    if (!ppd->takesOption(name) || ppd->isInstallable(name))
        return;
    if (const PrintError refusal = session->locks().refusal(ppd, name, value)) {
        session->addNotice(refusal.message);
        return;
    }
    const QMap<QString, QString> choices =
        ppd->hasOption(name) ? QMap<QString, QString>{{name, value}} : ppd->standardChoices(name, value);
    for (auto it = choices.begin(); it != choices.end(); ++it)
        session->markChoice(it.key(), it.value());
}

} // namespace

StartingSettings startingSettings(const NamedValues &jobOptions, int copies)
{
    StartingSettings start;
    start.copies = std::clamp(copies, 1, GeneralSettings::maxCopies);
    for (const auto &[name, value] : jobOptions) {
        if (name == QLatin1String("multiple-document-handling"))
            start.collate = !value.contains(QLatin1String("uncollated"));
        else if (name.compare(QLatin1String("Collate"), Qt::CaseInsensitive) == 0)
            start.collate = switchValue(value).value_or(true);
        else if (name == QLatin1String("page-ranges"))
            start.pages = value;
        else if (isPageOption(name))
            start.jobOptions.append({name, value});
        else
            start.choices.append({name, value});
    }
    return start;
}

void beginWith(const StartingSettings &start, DialogSession *session)
{
    using Part = GeneralSettings::Part;
    chooseGeneral(session, QStringLiteral("copies"), QString::number(start.copies));
    // For one copy the value is a default of the application, not a request.
    if (start.copies > 1 && start.collate)
        chooseGeneral(session, QStringLiteral("multiple-document-handling"),
                      GeneralSettings::handling(*start.collate));
    const GeneralSettings &general = session->general();
    QString pages = normalizedPageRanges(start.pages, nullptr).value_or(QString());
    if (start.currentPage && general.offersCurrentPage)
        pages = GeneralSettings::partName(Part::CurrentPage);
    if (start.selection && general.offersSelection)
        pages = GeneralSettings::partName(Part::Selection);
    chooseGeneral(session, QStringLiteral("page-ranges"), pages);
    if (session->ppd()) {
        for (const auto &[name, value] : start.choices)
            mark(name, value, session);
    }
    for (const auto &[name, value] : start.jobOptions) {
        PrintError refusal;
        if (!choose(session, {name, value, ChosenSetting::Kind::JobOption}, &refusal))
            session->addNotice(refusal.message);
    }
}

ApplicationChoice choiceForApplication(const DialogSession &session, const QStringList &formats)
{
    const QString pdf = QStringLiteral("pdf");
    ApplicationChoice choice{session.destination().name(),
                             session.general().pages,
                             {},
                             formats.isEmpty() || formats.contains(pdf) ? pdf : formats.first()};
    choice.currentPage = session.general().part == GeneralSettings::Part::CurrentPage;
    choice.selection = session.general().part == GeneralSettings::Part::Selection;
    const PpdDocument *ppd = session.ppd();
    const QStringList general = ppd ? generalOptionKeywords(*ppd) : QStringList();
    for (const QString &keyword : ppd ? ppd->optionKeywords() : QStringList()) {
        const auto option = ppd->option(keyword);
        const bool isChanged = option->markedChoice != option->defaultChoice;
        const bool isTold = general.contains(keyword) || isChanged;
        if (isTold && !option->markedChoice.isEmpty() && !ppd->isInstallable(keyword) &&
            !GeneralSettings::covers(keyword) && !session.isSecret(keyword))
            choice.choices.append({keyword, option->markedChoice});
    }
    return choice;
}

QList<JobOption> jobOptionsForMadePages(const DialogSession &session)
{
    GeneralSettings general = session.general();
    general.pages.clear();
    return session.jobOptions(&general);
}

int percentOf(const QList<JobOption> &options)
{
    PageLayoutSettings layout;
    for (const JobOption &option : options) {
        if (option.name == naturalScalingName)
            layout.set(option.name, option.value);
    }
    return layout.percent();
}

Paper paperOf(const DialogSession &session)
{
    const PpdDocument *ppd = session.ppd();
    const QString keyword = ppd ? ppd->markedChoice(pageSize) : QString();
    const auto size = keyword.isEmpty() ? std::nullopt : ppd->paperSize(keyword);
    if (!size)
        return {};
    return {keyword,     ppd->described(pageSize, keyword).choiceText,
            size->width, size->height,
            size->left,  size->right,
            size->top,   size->bottom};
}

} // namespace host
