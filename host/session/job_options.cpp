// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/job_options.h"

#include "host/printing/destination.h"
#include "host/printing/page_ranges.h"
#include "host/printing/ppd_document.h"
#include "host/printing/standard_names.h"
#include "host/session/job_settings.h"

#include <algorithm>

namespace host {

namespace {

using Kind = JobOption::Kind;

const QString pageRangesName = QStringLiteral("page-ranges");
const QString colorModeName = QStringLiteral("print-color-mode");
const QString allPages = QStringLiteral("1-2147483647"); // the print system's form of "1-"

// Whether libcups reports this name among a destination's options to describe the printer.
bool describesPrinter(const QString &name)
{
    return name.startsWith(QLatin1String("printer-")) || name.startsWith(QLatin1String("marker-")) ||
           name == QLatin1String("device-uri") || name == QLatin1String("auth-info-required");
}

bool isStandardName(const PpdDocument *ppd, const QString &name)
{
    return ppd && ppd->takesOption(name) && !ppd->hasOption(name);
}

// Keeps only the first option of each name; the server compares names without case.
class OnePerName
{
public:
    void add(const JobOption &option)
    {
        if (m_names.contains(option.name.toLower()))
            return;
        m_names.insert(option.name.toLower());
        m_options.append(option);
    }
    void add(const QList<JobOption> &options)
    {
        for (const JobOption &option : options)
            add(option);
    }
    const QList<JobOption> &options() const { return m_options; }

private:
    QSet<QString> m_names;
    QList<JobOption> m_options;
};

// The chosen job options that do not correspond to an option of the PPD; they are sent unchanged.
QList<JobOption> passedOn(const JobOptionSources &sources)
{
    QList<JobOption> options;
    for (const ChosenSetting &setting : sources.chosen.inOrder()) {
        const bool isMarked = sources.ppd && sources.ppd->takesOption(setting.key) &&
                              !(setting.key == colorModeName && setting.options.isEmpty());
        // chosen for another printer
        const bool isForeign =
            printModeNames().contains(setting.key) && !takesPrintMode(sources.destination, setting.key);
        if (setting.kind == ChosenSetting::Kind::JobOption && !isMarked && !isForeign)
            options.append({setting.key, setting.value, Kind::Attribute});
    }
    return options;
}

// The marks that are sent, or, with `Shown`, the other marks.
QList<JobOption> marks(const JobOptionSources &sources, Kind kind)
{
    QList<JobOption> options;
    if (!sources.ppd)
        return options;
    QSet<QString> sent = sources.savedOptions;
    for (const OptionChoice &change : sources.ppd->changedChoices())
        sent.insert(change.option);
    for (const QString &keyword : sources.ppd->optionKeywords()) {
        const QString choice = sources.ppd->markedChoice(keyword);
        const bool isSent = sent.contains(keyword) || sources.chosen.contains(keyword);
        const bool isShown = !isSent && !sources.ppd->isInstallable(keyword);
        const bool isWanted = kind == Kind::Shown ? isShown : isSent;
        if (isWanted && !choice.isEmpty() && !GeneralSettings::covers(keyword))
            options.append({keyword, choice, kind});
    }
    return options;
}

// Whether the user has made a choice that this standard name may represent.
bool isDecided(const JobOptionSources &sources, const QString &name)
{
    const QStringList keywords = PpdDocument::optionsOfStandardName(name);
    return std::any_of(keywords.begin(), keywords.end(),
                       [&](const QString &keyword) { return sources.chosen.contains(keyword); });
}

// Whether the server would add this name to the job with a value that differs from these choices.
bool serverDefaultDiffers(const JobOptionSources &sources, const QString &name,
                          const QMap<QString, QString> &choices)
{
    const QMap<QString, QString> &servers = sources.destination.queueDefaults;
    return servers.contains(name) && sources.ppd->standardChoices(name, servers.value(name)) != choices;
}

// The job option for a default of the queue or the user under a standard name. The server adds the queue's
// default to each job that does not contain the name, even if the job contains the PPD's keyword; the filters
// would then receive both. If a job contains "media", newer versions of libcups take the tray and the
// type of the paper from it alone, so it then contains size, tray and type.
JobOption standardDefault(const JobOptionSources &sources, const QString &name, const QString &value)
{
    const QMap<QString, QString> choices = sources.ppd->standardChoices(name, value);
    if (choices.isEmpty() && !isDecided(sources, name))
        return {name, value, Kind::Preference}; // no mark corresponds to it
    bool holds = !choices.isEmpty();
    for (auto it = choices.begin(); it != choices.end(); ++it)
        holds &= sources.ppd->markedChoice(it.key()) == it.value();
    const bool isMedia = name == QLatin1String("media");
    const bool isChosen = isMedia && isDecided(sources, name);
    const bool namesAll = choices.isEmpty() || isMedia;
    const QString now = holds && !isChosen ? value
                                           : standardValueOfMarks(sources.ppd, name,
                                                                  namesAll ? QStringList() : choices.keys());
    const bool isServers = isChosen && sources.destination.queueDefaults.contains(name);
    const bool isKept = holds && !isServers && !serverDefaultDiffers(sources, name, choices);
    return {name, now, now.isEmpty() || isKept ? Kind::Shown : Kind::Attribute};
}

QList<JobOption> defaults(const JobOptionSources &sources)
{
    QList<JobOption> options;
    const QMap<QString, QString> &all = sources.destination.options;
    for (auto it = all.begin(); it != all.end(); ++it) {
        if (describesPrinter(it.key()) || isPanelSetting(it.key()) || GeneralSettings::covers(it.key()))
            continue;
        if (isStandardName(sources.ppd, it.key()))
            options.append(standardDefault(sources, it.key(), it.value()));
        else if (!sources.ppd || !sources.ppd->hasOption(it.key()))
            options.append({it.key(), it.value(), Kind::Preference});
    }
    const auto pages = normalizedPageRanges(all.value(pageRangesName), nullptr);
    if (!pages.value_or(QString()).isEmpty() && sources.general.pages.isEmpty())
        options.append({pageRangesName, allPages, Kind::Attribute});
    return options;
}

} // namespace

bool isPanelSetting(const QString &name)
{
    return name.contains(QLatin1Char('.'));
}

bool looksLikeOptionOfAPpd(const QString &name)
{
    return !name.isEmpty() && name.front().isUpper() && !GeneralSettings::covers(name.toLower()) &&
           !isPanelSetting(name) && PpdDocument::optionsOfStandardName(name).isEmpty();
}

QList<JobOption> jobOptions(const JobOptionSources &sources)
{
    OnePerName options;
    options.add(passedOn(sources));
    options.add(marks(sources, Kind::Choice));
    for (auto it = sources.printSettings.begin(); it != sources.printSettings.end(); ++it)
        options.add(JobOption{it.key(), it.value().toString()});
    options.add(sources.general.jobOptions());
    options.add(sources.general.layout.jobOptions(PageLayoutSettings::from(sources.destination.options),
                                                  sources.destination.options));
    options.add(defaults(sources));
    options.add(marks(sources, Kind::Shown));
    if (sources.ppd && sources.ppd->takesOption(QStringLiteral("sides")))
        options.add(JobOption{QStringLiteral("sides"),
                              standardValueOfMarks(sources.ppd, QStringLiteral("sides"), {}), Kind::Shown});
    return options.options();
}

} // namespace host
