// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/printed_pages.h"

#include "host/printing/option_text.h"
#include "host/printing/standard_names.h"
#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "platform/key_value_object.h"

#include <QCoreApplication>

#include <algorithm>

namespace host {

namespace {

struct PagesText
{
    Q_DECLARE_TR_FUNCTIONS(PagesText)
};

const QString pageSize = QStringLiteral("PageSize");

// Whether job options make the server pass documents to the printer unchanged.
bool bypassesFilters(const DialogSession &session)
{
    const QList<JobOption> options = session.jobOptions();
    return std::any_of(options.begin(), options.end(), [](const JobOption &option) {
        if (option.kind == JobOption::Kind::Shown)
            return false;
        if (option.name == QLatin1String("raw"))
            return switchValue(option.value).value_or(false);
        return option.name == QLatin1String("document-format") && !option.value.isEmpty();
    });
}

// Names that PPDs of many makers use for the same setting.
bool isMonochromeMark(const QString &keyword, const QString &choice)
{
    const QStringList keywords = colorKeywords() + QStringList(QStringLiteral("PrintoutMode"));
    return keywords.contains(keyword, Qt::CaseInsensitive) && isMonochromeChoice(choice);
}

// The choice on the page of a panel, which is marked when the panel is saved; otherwise the marked choice.
QString shownChoice(const DialogSession &session, const QString &keyword)
{
    const int panel = session.panels().ofKeyword(keyword);
    const bool isKnown =
        panel >= 0 && session.panels().isRestored(panel) && !session.panels().isRestoring(panel);
    const QVariant shown = isKnown ? session.panels().objectOf(panel)->valueForKey(keyword) : QVariant();
    return shown.isValid() ? shown.toString() : session.ppd()->markedChoice(keyword);
}

bool isMonochrome(const DialogSession &session, const QList<JobOption> &options)
{
    const bool isAsked = std::any_of(options.begin(), options.end(), [](const JobOption &option) {
        return option.name == QLatin1String("print-color-mode") &&
               option.value.contains(QLatin1String("monochrome"));
    });
    const QStringList keywords = session.ppd() ? session.ppd()->optionKeywords() : QStringList();
    return isAsked || std::any_of(keywords.begin(), keywords.end(), [&](const QString &keyword) {
               return isMonochromeMark(keyword, shownChoice(session, keyword));
           });
}

} // namespace

PageSettings pageSettings(const DialogSession &session)
{
    PageSettings settings;
    const QList<JobOption> options = session.jobOptions();
    for (const JobOption &option : options) {
        const bool isKnown = (isPageOption(option.name) && option.name != naturalScalingName) ||
                             option.name == QLatin1String("page-ranges");
        if (isKnown && option.kind != JobOption::Kind::Shown)
            settings.options.append({option.name, option.value});
    }
    const PageLayoutSettings layout = layoutAsPrinted(session);
    for (const QString &name : PageLayoutSettings::names()) {
        if (layout.value(name) !=
            session.general().layout.value(name)) // an option of the PPD takes its place
            settings.options.append({name, layout.value(name)});
    }
    // The filters then print an empty side first if the number of sides is odd.
    if (session.general().layout.isReversed() && isTwoSided(session))
        settings.options.append({QStringLiteral("sides"), QStringLiteral("two-sided-long-edge")});
    settings.isMonochrome = isMonochrome(session, options);
    settings.percent = session.general().layout.percent();
    const QString natural = QString::number(PageSettings::naturalSize);
    settings.isImageScaledByServer =
        session.ppd() && session.destination().queueDefaults.value(naturalScalingName, natural) != natural;
    const QString choice = session.ppd() ? session.ppd()->markedChoice(pageSize) : QString();
    if (!choice.isEmpty())
        settings.paper = session.ppd()->paperSize(choice).value_or(PaperSize());
    return settings;
}

std::optional<PageSettings> settingsForCheck(const DialogSession &session)
{
    return bypassesFilters(session) ? std::nullopt : std::optional(pageSettings(session));
}

QString scalingObstacle(const DialogSession &session)
{
    return session.ppd() && !bypassesFilters(session)
               ? QString()
               : PagesText::tr("Documents reach the printer unchanged. They cannot be scaled.");
}

PrintError scalingProblem(const DialogSession &session)
{
    const QString obstacle = scalingObstacle(session);
    if (obstacle.isNull() || session.general().layout.percent() == PageSettings::naturalSize)
        return {};
    return {PrintError::Kind::BadValue,
            PagesText::tr("%1 Set “%2” to %3.")
                .arg(obstacle, PageLayoutSettings::textOf(naturalScalingName),
                     layoutValueText(naturalScalingName, QString::number(PageSettings::naturalSize)))};
}

bool isTwoSided(const DialogSession &session)
{
    return session.ppd() && standardValueOfMarks(session.ppd(), QStringLiteral("sides"), {})
                                .startsWith(QLatin1String("two-sided"));
}

} // namespace host
