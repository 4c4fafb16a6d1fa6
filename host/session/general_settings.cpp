// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/general_settings.h"

#include "host/printing/option_text.h"
#include "host/printing/page_ranges.h"
#include "host/printing/ppd_document.h"
#include "host/printing/standard_names.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace host {

namespace {

struct SummaryText
{
    Q_DECLARE_TR_FUNCTIONS(SummaryText)
};

struct SettingText
{
    Q_DECLARE_TR_FUNCTIONS(SettingText)
};

// To add a setting, add a member, a row here, and a control on the general page.
struct Setting
{
    QLatin1String name;
    QLatin1String keyword; // another name, in any case, which PPDs use
    const char *text;
    QString (*read)(const GeneralSettings &general);
    QString (*write)(GeneralSettings *general, const QString &value); // returns a problem
    QString (*shown)(const GeneralSettings &general);
    bool (*isSent)(const GeneralSettings &general);
};

QString setCopies(GeneralSettings *general, const QString &value)
{
    bool isNumber = false;
    const int copies = value.toInt(&isNumber);
    if (!isNumber || copies < 1 || copies > GeneralSettings::maxCopies)
        return SettingText::tr("copies takes a number from 1 to %1.").arg(GeneralSettings::maxCopies);
    general->copies = copies;
    return {};
}

QString setCollate(GeneralSettings *general, const QString &value)
{
    const bool isHandling =
        value == GeneralSettings::handling(true) || value == GeneralSettings::handling(false);
    const auto collate =
        isHandling ? std::optional(value == GeneralSettings::handling(true)) : switchValue(value);
    if (!collate)
        return SettingText::tr("%1 takes True or False.").arg("collate"_L1);
    general->collate = *collate;
    return {};
}

QString collateText(const GeneralSettings &general)
{
    if (general.copies == 1)
        return {};
    return general.collate ? SummaryText::tr("On") : SummaryText::tr("Off");
}

QString readPages(const GeneralSettings &general)
{
    return general.part == GeneralSettings::Part::Pages ? general.pages
                                                        : GeneralSettings::partName(general.part);
}

QString setPages(GeneralSettings *general, const QString &value)
{
    using Part = GeneralSettings::Part;
    const bool isCurrent =
        general->offersCurrentPage && value == GeneralSettings::partName(Part::CurrentPage);
    const bool isSelection = general->offersSelection && value == GeneralSettings::partName(Part::Selection);
    QString problem;
    const auto pages = isCurrent || isSelection ? QString() : normalizedPageRanges(value, &problem);
    if (!pages)
        return problem;
    general->pages = *pages;
    general->part = isCurrent ? Part::CurrentPage : isSelection ? Part::Selection : Part::Pages;
    return {};
}

QString pagesText(const GeneralSettings &general)
{
    if (general.part != GeneralSettings::Part::Pages)
        return general.part == GeneralSettings::Part::CurrentPage ? SummaryText::tr("Current page")
                                                                  : SummaryText::tr("Selection");
    return general.pages.isEmpty() ? SummaryText::tr("All") : general.pages;
}

constexpr std::array settings = {
    Setting{"copies"_L1,
            {},
            QT_TRANSLATE_NOOP("SummaryText", "Copies"),
            [](const auto &general) { return QString::number(general.copies); },
            setCopies,
            [](const auto &general) { return QLocale().toString(general.copies); },
            [](const auto &) { return true; }},
    Setting{"multiple-document-handling"_L1, "Collate"_L1, QT_TRANSLATE_NOOP("SummaryText", "Collate"),
            [](const auto &general) { return GeneralSettings::handling(general.collate); }, setCollate,
            collateText, [](const auto &general) { return general.copies > 1; }},
    Setting{"page-ranges"_L1,
            {},
            QT_TRANSLATE_NOOP("SummaryText", "Pages"),
            readPages,
            setPages,
            pagesText,
            [](const auto &general) { return !general.pages.isEmpty(); }},
};

const Setting *settingNamed(const QString &name)
{
    const auto known = std::find_if(settings.begin(), settings.end(), [&](const Setting &setting) {
        return setting.name == name ||
               (!setting.keyword.isEmpty() && name.compare(setting.keyword, Qt::CaseInsensitive) == 0);
    });
    return known == settings.end() ? nullptr : &*known;
}

} // namespace

GeneralSettings GeneralSettings::from(const QMap<QString, QString> &options)
{
    GeneralSettings general;
    for (auto it = options.begin(); it != options.end(); ++it) {
        if (covers(it.key()))
            general.set(it.key(), it.value());
    }
    // Takes precedence over "Collate"; further values also specify how documents are put together.
    const QString handling = options.value(QStringLiteral("multiple-document-handling"));
    if (!handling.isEmpty())
        general.collate = !handling.contains("uncollated"_L1);
    general.layout = PageLayoutSettings::from(options);
    return general;
}

QList<JobOption> GeneralSettings::jobOptions() const
{
    QList<JobOption> options;
    for (const Setting &setting : settings) {
        if (setting.isSent(*this))
            options.append({setting.name, setting.read(*this), JobOption::Kind::Attribute});
    }
    if (copies > 1) // filters of older print systems read this option
        options.append(
            {QStringLiteral("Collate"), collate ? QStringLiteral("True") : QStringLiteral("False")});
    return options;
}

QString GeneralSettings::handling(bool collate)
{
    return collate ? QStringLiteral("separate-documents-collated-copies")
                   : QStringLiteral("separate-documents-uncollated-copies");
}

QString GeneralSettings::partName(Part part)
{
    return part == Part::CurrentPage ? QStringLiteral("current-page")
           : part == Part::Selection ? QStringLiteral("selection")
                                     : QString();
}

QStringList GeneralSettings::names()
{
    QStringList list;
    for (const Setting &setting : settings)
        list.append(setting.name);
    return list;
}

bool GeneralSettings::covers(const QString &name)
{
    return settingNamed(name);
}

QString GeneralSettings::jobOptionOf(const QString &name)
{
    const Setting *setting = settingNamed(name);
    return setting ? QString(setting->name) : name;
}

QString GeneralSettings::textOf(const QString &name)
{
    const Setting *setting = settingNamed(name);
    return setting ? SummaryText::tr(setting->text) : PageLayoutSettings::textOf(name);
}

QString GeneralSettings::value(const QString &name) const
{
    const Setting *setting = settingNamed(name);
    return setting ? setting->read(*this) : layout.value(name);
}

QString GeneralSettings::valueText(const QString &name) const
{
    const Setting *setting = settingNamed(name);
    return setting ? setting->shown(*this) : layoutValueText(name, layout.value(name));
}

QString GeneralSettings::set(const QString &name, const QString &value)
{
    if (const Setting *setting = settingNamed(name))
        return setting->write(this, value);
    if (value.isEmpty() && PageLayoutSettings().value(name).isEmpty() &&
        PageLayoutSettings::names().contains(name))
        layout.reset(name);
    else if (!layout.set(name, value))
        return SettingText::tr("%1 takes %2.").arg(name, PageLayoutSettings::takes(name));
    return {};
}

QMap<QString, QString> GeneralSettings::values() const
{
    QMap<QString, QString> all = layout.values();
    for (const Setting &setting : settings)
        all.insert(setting.name, setting.read(*this));
    all.removeIf([](const auto &setting) { return setting.value().isEmpty(); });
    return all;
}

QList<SettingWords> GeneralSettings::inWords() const
{
    QList<SettingWords> words;
    for (const Setting &setting : settings) {
        if (const QString shown = setting.shown(*this); !shown.isNull())
            words.append({SummaryText::tr(setting.text), shown});
    }
    for (const QString &name : layout.changed())
        words.append({textOf(name), valueText(name)});
    return words;
}

QString colorOptionKeyword(const PpdDocument &ppd)
{
    for (const QString &name : colorKeywords()) {
        const auto option = ppd.option(name);
        if (option && option->choices.size() > 1)
            return option->keyword;
    }
    return {};
}

QStringList generalOptionKeywords(const PpdDocument &ppd)
{
    // Each list contains alternative keywords of one option; the first one that the PPD has is shown.
    const QList<QStringList> wanted = {{QStringLiteral("PageSize")},
                                       {QStringLiteral("MediaType")},
                                       {QStringLiteral("InputSlot")},
                                       PpdDocument::optionsOfStandardName(QStringLiteral("sides")),
                                       {colorOptionKeyword(ppd)}};
    QStringList keywords;
    for (const QStringList &names : wanted) {
        for (const QString &name : names) {
            if (ppd.hasOption(name)) {
                keywords.append(name);
                break;
            }
        }
    }
    return keywords;
}

} // namespace host
