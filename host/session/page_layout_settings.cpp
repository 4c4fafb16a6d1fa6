// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/page_layout_settings.h"

#include "host/printing/option_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace host {

namespace {

struct LayoutText
{
    Q_DECLARE_TR_FUNCTIONS(LayoutText)
};

// To add a setting, add a row here, its values below, and a control in LayoutForm.
struct Setting
{
    QLatin1String name;
    QLatin1String defaultValue; // the print system's default; empty for that of each document
    QLatin1String sent;         // sent to the server instead of an empty value
    const char *text;
    QLatin1String keyword = {}; // of an option with which a PPD takes the place of this setting
    int least = 0, most = 0;    // the range of a number; such a setting has no rows below
};

constexpr std::array settings = {
    Setting{"booklet"_L1, "false"_L1, {}, QT_TRANSLATE_NOOP("LayoutText", "Booklet"), "Booklet"_L1},
    Setting{"number-up"_L1, "1"_L1, {}, QT_TRANSLATE_NOOP("LayoutText", "Pages per side")},
    Setting{"number-up-layout"_L1, "lrtb"_L1, {}, QT_TRANSLATE_NOOP("LayoutText", "Order")},
    Setting{"page-border"_L1, "none"_L1, {}, QT_TRANSLATE_NOOP("LayoutText", "Border")},
    Setting{"orientation-requested"_L1, {}, "3"_L1, QT_TRANSLATE_NOOP("LayoutText", "Orientation")},
    Setting{"print-scaling"_L1, {}, "auto"_L1, QT_TRANSLATE_NOOP("LayoutText", "Scaling")},
    Setting{"natural-scaling"_L1, "100"_L1, {}, QT_TRANSLATE_NOOP("LayoutText", "Scale"), {}, 25, 400},
    Setting{"page-set"_L1, "all"_L1, {}, QT_TRANSLATE_NOOP("LayoutText", "Odd or even")},
    Setting{"outputorder"_L1, "normal"_L1, {}, QT_TRANSLATE_NOOP("LayoutText", "Last page first")},
    Setting{"mirror"_L1, "false"_L1, {}, QT_TRANSLATE_NOOP("LayoutText", "Mirror image"), "MirrorPrint"_L1},
};

struct Value
{
    QLatin1String name; // of the setting
    QLatin1String value;
    const char *text; // null if it is the value itself
    bool isOffered = true;
};

constexpr std::array values = {
    Value{"number-up"_L1, "1"_L1, nullptr},
    Value{"number-up"_L1, "2"_L1, nullptr},
    Value{"number-up"_L1, "4"_L1, nullptr},
    Value{"number-up"_L1, "6"_L1, nullptr},
    Value{"number-up"_L1, "9"_L1, nullptr},
    Value{"number-up"_L1, "16"_L1, nullptr},
    Value{"number-up-layout"_L1, "lrtb"_L1, QT_TRANSLATE_NOOP("LayoutText", "Left to right, then down")},
    Value{"number-up-layout"_L1, "lrbt"_L1, QT_TRANSLATE_NOOP("LayoutText", "Left to right, then up")},
    Value{"number-up-layout"_L1, "rltb"_L1, QT_TRANSLATE_NOOP("LayoutText", "Right to left, then down")},
    Value{"number-up-layout"_L1, "rlbt"_L1, QT_TRANSLATE_NOOP("LayoutText", "Right to left, then up")},
    Value{"number-up-layout"_L1, "tblr"_L1, QT_TRANSLATE_NOOP("LayoutText", "Down, then left to right")},
    Value{"number-up-layout"_L1, "tbrl"_L1, QT_TRANSLATE_NOOP("LayoutText", "Down, then right to left")},
    Value{"number-up-layout"_L1, "btlr"_L1, QT_TRANSLATE_NOOP("LayoutText", "Up, then left to right")},
    Value{"number-up-layout"_L1, "btrl"_L1, QT_TRANSLATE_NOOP("LayoutText", "Up, then right to left")},
    Value{"page-border"_L1, "none"_L1, QT_TRANSLATE_NOOP("LayoutText", "None")},
    Value{"page-border"_L1, "single"_L1, QT_TRANSLATE_NOOP("LayoutText", "Thin line")},
    Value{"page-border"_L1, "single-thick"_L1, QT_TRANSLATE_NOOP("LayoutText", "Thick line")},
    Value{"page-border"_L1, "double"_L1, QT_TRANSLATE_NOOP("LayoutText", "Two thin lines")},
    Value{"page-border"_L1, "double-thick"_L1, QT_TRANSLATE_NOOP("LayoutText", "Two thick lines")},
    Value{"orientation-requested"_L1, ""_L1, QT_TRANSLATE_NOOP("LayoutText", "As in the document")},
    Value{"orientation-requested"_L1, "3"_L1, QT_TRANSLATE_NOOP("LayoutText", "Portrait")},
    Value{"orientation-requested"_L1, "4"_L1, QT_TRANSLATE_NOOP("LayoutText", "Landscape")},
    Value{"orientation-requested"_L1, "5"_L1, QT_TRANSLATE_NOOP("LayoutText", "Landscape, turned around"),
          false},
    Value{"orientation-requested"_L1, "6"_L1, QT_TRANSLATE_NOOP("LayoutText", "Portrait, turned around"),
          false},
    Value{"page-set"_L1, "all"_L1, QT_TRANSLATE_NOOP("LayoutText", "Odd and even pages")},
    Value{"page-set"_L1, "odd"_L1, QT_TRANSLATE_NOOP("LayoutText", "Odd pages only")},
    Value{"page-set"_L1, "even"_L1, QT_TRANSLATE_NOOP("LayoutText", "Even pages only")},
    Value{"print-scaling"_L1, ""_L1, QT_TRANSLATE_NOOP("LayoutText", "Automatic")},
    Value{"print-scaling"_L1, "auto"_L1, QT_TRANSLATE_NOOP("LayoutText", "Shrink to the page or cut off"),
          false},
    Value{"print-scaling"_L1, "auto-fit"_L1, QT_TRANSLATE_NOOP("LayoutText", "Shrink to the page"), false},
    Value{"print-scaling"_L1, "fit"_L1, QT_TRANSLATE_NOOP("LayoutText", "Fit to the page")},
    Value{"print-scaling"_L1, "fill"_L1, QT_TRANSLATE_NOOP("LayoutText", "Fill the page"), false},
    Value{"print-scaling"_L1, "none"_L1, QT_TRANSLATE_NOOP("LayoutText", "Actual size")},
    Value{"outputorder"_L1, "normal"_L1, QT_TRANSLATE_NOOP("LayoutText", "Off")},
    Value{"outputorder"_L1, "reverse"_L1, QT_TRANSLATE_NOOP("LayoutText", "On")},
    Value{"booklet"_L1, "false"_L1, QT_TRANSLATE_NOOP("LayoutText", "Off")},
    Value{"booklet"_L1, "true"_L1, QT_TRANSLATE_NOOP("LayoutText", "On")},
    Value{"mirror"_L1, "false"_L1, QT_TRANSLATE_NOOP("LayoutText", "Off")},
    Value{"mirror"_L1, "true"_L1, QT_TRANSLATE_NOOP("LayoutText", "On")},
};

// An older name for a value of a setting; its own values are True and False.
struct OlderName
{
    QLatin1String name;
    QLatin1String setting;
    QLatin1String value;
    bool isSentToo; // the PostScript filter supports only this name
};

constexpr std::array olderNames = {
    OlderName{"landscape"_L1, "orientation-requested"_L1, "4"_L1, false},
    OlderName{"fit-to-page"_L1, "print-scaling"_L1, "fit"_L1, true},
    OlderName{"fitplot"_L1, "print-scaling"_L1, "fit"_L1, false},
};

const OlderName *olderNamed(const QString &name)
{
    const auto known = std::find_if(olderNames.begin(), olderNames.end(),
                                    [&](const OlderName &older) { return older.name == name; });
    return known == olderNames.end() ? nullptr : &*known;
}

QStringList valuesOf(const QString &name, bool isForUsers)
{
    QStringList list;
    for (const Value &value : values) {
        if (name == value.name && (isForUsers ? value.isOffered : !value.value.isEmpty()))
            list.append(value.value);
    }
    return list;
}

const Setting *settingNamed(const QString &name)
{
    const auto known = std::find_if(settings.begin(), settings.end(),
                                    [&](const Setting &setting) { return setting.name == name; });
    return known == settings.end() ? nullptr : &*known;
}

bool isSwitch(const QString &name)
{
    return valuesOf(name, false) == QStringList{QStringLiteral("false"), QStringLiteral("true")};
}

} // namespace

PageLayoutSettings::PageLayoutSettings()
{
    static const QMap<QString, QString> defaults = [] {
        QMap<QString, QString> values;
        for (const Setting &setting : settings)
            values.insert(setting.name, setting.defaultValue);
        return values;
    }();
    m_values = defaults;
}

PageLayoutSettings PageLayoutSettings::from(const QMap<QString, QString> &options)
{
    PageLayoutSettings result;
    for (auto it = options.begin(); it != options.end(); ++it)
        result.set(it.key(), it.value());
    for (const OlderName &older : olderNames) // the newer names take precedence
        result.set(older.setting, options.value(older.setting));
    return result;
}

QStringList PageLayoutSettings::names()
{
    QStringList list;
    for (const Setting &setting : settings)
        list.append(setting.name);
    return list;
}

QStringList PageLayoutSettings::offered(const QString &name)
{
    return valuesOf(name, true);
}

bool PageLayoutSettings::covers(const QString &name)
{
    return names().contains(name) || olderNamed(name);
}

QString PageLayoutSettings::textOf(const QString &name)
{
    const Setting *setting = settingNamed(name);
    return setting ? LayoutText::tr(setting->text) : QString();
}

QString PageLayoutSettings::keywordFor(const QString &name)
{
    const Setting *setting = settingNamed(name);
    return setting ? QString(setting->keyword) : QString();
}

std::optional<PageLayoutSettings::Range> PageLayoutSettings::rangeOf(const QString &name)
{
    const Setting *setting = settingNamed(name);
    return setting && setting->most > 0 ? std::optional(Range{setting->least, setting->most}) : std::nullopt;
}

QString PageLayoutSettings::takes(const QString &name)
{
    if (const auto range = rangeOf(name))
        return LayoutText::tr("whole numbers from %1 to %2").arg(range->least).arg(range->most);
    return olderNamed(name) || isSwitch(name) ? LayoutText::tr("True or False")
                                              : valuesOf(name, false).join(QStringLiteral(", "));
}

bool PageLayoutSettings::set(const QString &name, const QString &value)
{
    if (const OlderName *older = olderNamed(name)) {
        const auto on = switchValue(value);
        QString &setting = m_values[older->setting];
        if (on && (*on || setting == older->value))
            setting = *on ? QString(older->value) : QString();
        return on.has_value();
    }
    if (const auto range = rangeOf(name)) {
        bool isNumber = false;
        const int number = value.toInt(&isNumber);
        const bool isTaken = isNumber && number >= range->least && number <= range->most;
        if (isTaken)
            m_values.insert(name, QString::number(number));
        return isTaken;
    }
    QString known = value.toLower();
    if (const auto on = isSwitch(name) ? switchValue(value) : std::nullopt)
        known = *on ? QStringLiteral("true") : QStringLiteral("false");
    const bool isTaken = valuesOf(name, false).contains(known);
    if (isTaken)
        m_values.insert(name, known);
    return isTaken;
}

int PageLayoutSettings::sidesOf(int pages) const
{
    const int perSide = pagesPerSide();
    const int perSheet = isBooklet() ? 2 * perSide : perSide; // both sides of its sheets are counted
    return (pages + perSheet - 1) / perSheet * (perSheet / perSide);
}

void PageLayoutSettings::reset(const QString &name)
{
    m_values.insert(name, PageLayoutSettings().value(name));
}

QList<JobOption> PageLayoutSettings::jobOptions(const PageLayoutSettings &start,
                                                const QMap<QString, QString> &defaults) const
{
    QList<JobOption> options;
    const auto add = [&](const QString &name, const QString &value) {
        options.append({name, value, JobOption::Kind::Attribute});
    };
    for (const Setting &setting : settings) {
        const QString now = value(setting.name);
        if (now == start.value(setting.name))
            continue;
        add(setting.name, now.isEmpty() ? QString(setting.sent) : now);
        for (const OlderName &older : olderNames) {
            const bool isMeant = older.isSentToo && now == older.value;
            // The server would add a default under an older name to the options that are sent.
            if (older.setting == setting.name && (isMeant || defaults.contains(older.name)))
                add(older.name, isMeant ? QStringLiteral("true") : QStringLiteral("false"));
        }
    }
    return options;
}

QMap<QString, QString> PageLayoutSettings::values() const
{
    QMap<QString, QString> set = m_values;
    set.removeIf([](const auto &setting) { return setting.value().isEmpty(); });
    return set;
}

QStringList PageLayoutSettings::changed() const
{
    QStringList list;
    for (const Setting &setting : settings) {
        const bool isOrder = setting.name == "number-up-layout"_L1, isNumber = setting.name == "number-up"_L1;
        const bool isInEffect = isOrder ? pagesPerSide() > 1 && !isBooklet() : !(isBooklet() && isNumber);
        if (isInEffect && (isOrder || value(setting.name) != setting.defaultValue))
            list.append(setting.name);
    }
    return list;
}

QString layoutValueText(const QString &name, const QString &value)
{
    if (name == naturalScalingName)
        return LayoutText::tr("%1 %").arg(value);
    for (const Value &known : values) {
        if (name == known.name && value == known.value)
            return known.text ? LayoutText::tr(known.text) : value;
    }
    return {};
}

bool isPageOption(const QString &name)
{
    static const QStringList others =
        QStringLiteral("page-left page-right page-top page-bottom position scaling ppi "
                       "cpi lpi columns wrap prettyprint crop-to-fit")
            .split(QLatin1Char(' '));
    return PageLayoutSettings::covers(name) || others.contains(name);
}

} // namespace host
