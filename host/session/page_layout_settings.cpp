// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/page_layout_settings.h"

#include "host/printing/option_text.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace host {

namespace {

using Kind = JobOption::Kind;

struct LayoutText
{
    Q_DECLARE_TR_FUNCTIONS(LayoutText)
};

const QString numberUp = QStringLiteral("number-up");
const QString numberUpLayout = QStringLiteral("number-up-layout");
const QString pageBorder = QStringLiteral("page-border");
const QString orientationRequested = QStringLiteral("orientation-requested");
const QString pageSetName = QStringLiteral("page-set");
const QString outputOrder = QStringLiteral("outputorder");
const QString printScaling = QStringLiteral("print-scaling");
// Older names for a value of another option.
const QString landscape = QStringLiteral("landscape");
const QString fitToPage = QStringLiteral("fit-to-page");
const QString fitPlot = QStringLiteral("fitplot");

const QString fit = QStringLiteral("fit");
const QString landscapeValue = QStringLiteral("4");

struct ValueText
{
    const char *name;
    const char *value;
    const char *text;
};

constexpr std::array valueTexts = {
    ValueText{"number-up-layout", "lrtb", QT_TRANSLATE_NOOP("LayoutText", "Left to right, then down")},
    ValueText{"number-up-layout", "lrbt", QT_TRANSLATE_NOOP("LayoutText", "Left to right, then up")},
    ValueText{"number-up-layout", "rltb", QT_TRANSLATE_NOOP("LayoutText", "Right to left, then down")},
    ValueText{"number-up-layout", "rlbt", QT_TRANSLATE_NOOP("LayoutText", "Right to left, then up")},
    ValueText{"number-up-layout", "tblr", QT_TRANSLATE_NOOP("LayoutText", "Down, then left to right")},
    ValueText{"number-up-layout", "tbrl", QT_TRANSLATE_NOOP("LayoutText", "Down, then right to left")},
    ValueText{"number-up-layout", "btlr", QT_TRANSLATE_NOOP("LayoutText", "Up, then left to right")},
    ValueText{"number-up-layout", "btrl", QT_TRANSLATE_NOOP("LayoutText", "Up, then right to left")},
    ValueText{"page-border", "none", QT_TRANSLATE_NOOP("LayoutText", "None")},
    ValueText{"page-border", "single", QT_TRANSLATE_NOOP("LayoutText", "Thin line")},
    ValueText{"page-border", "single-thick", QT_TRANSLATE_NOOP("LayoutText", "Thick line")},
    ValueText{"page-border", "double", QT_TRANSLATE_NOOP("LayoutText", "Two thin lines")},
    ValueText{"page-border", "double-thick", QT_TRANSLATE_NOOP("LayoutText", "Two thick lines")},
    ValueText{"orientation-requested", "", QT_TRANSLATE_NOOP("LayoutText", "As in the document")},
    ValueText{"orientation-requested", "3", QT_TRANSLATE_NOOP("LayoutText", "Portrait")},
    ValueText{"orientation-requested", "4", QT_TRANSLATE_NOOP("LayoutText", "Landscape")},
    ValueText{"orientation-requested", "5", QT_TRANSLATE_NOOP("LayoutText", "Landscape, turned around")},
    ValueText{"orientation-requested", "6", QT_TRANSLATE_NOOP("LayoutText", "Portrait, turned around")},
    ValueText{"page-set", "all", QT_TRANSLATE_NOOP("LayoutText", "Odd and even pages")},
    ValueText{"page-set", "odd", QT_TRANSLATE_NOOP("LayoutText", "Odd pages only")},
    ValueText{"page-set", "even", QT_TRANSLATE_NOOP("LayoutText", "Even pages only")},
    ValueText{"print-scaling", "", QT_TRANSLATE_NOOP("LayoutText", "Automatic")},
    ValueText{"print-scaling", "auto", QT_TRANSLATE_NOOP("LayoutText", "Shrink to the page or cut off")},
    ValueText{"print-scaling", "auto-fit", QT_TRANSLATE_NOOP("LayoutText", "Shrink to the page")},
    ValueText{"print-scaling", "fit", QT_TRANSLATE_NOOP("LayoutText", "Fit to the page")},
    ValueText{"print-scaling", "fill", QT_TRANSLATE_NOOP("LayoutText", "Fill the page")},
    ValueText{"print-scaling", "none", QT_TRANSLATE_NOOP("LayoutText", "Actual size")},
};

QStringList valuesOf(const QString &name)
{
    QStringList values;
    for (const ValueText &text : valueTexts) {
        if (name == QLatin1String(text.name) && *text.value)
            values.append(QLatin1String(text.value));
    }
    return values;
}

bool take(const QString &name, const QString &value, QString *setting)
{
    const QString known = value.toLower();
    if (!valuesOf(name).contains(known))
        return false;
    *setting = known;
    return true;
}

} // namespace

const QList<int> &PageLayoutSettings::pagesPerSideChoices()
{
    static const QList<int> choices = {1, 2, 4, 6, 9, 16};
    return choices;
}

QStringList PageLayoutSettings::orders()
{
    return valuesOf(numberUpLayout);
}

QStringList PageLayoutSettings::borders()
{
    return valuesOf(pageBorder);
}

QStringList PageLayoutSettings::pageSets()
{
    return valuesOf(pageSetName);
}

QString layoutValueText(const QString &name, const QString &value)
{
    for (const ValueText &text : valueTexts) {
        if (name == QLatin1String(text.name) && value == QLatin1String(text.value))
            return LayoutText::tr(text.text);
    }
    return {};
}

PageLayoutSettings PageLayoutSettings::from(const QMap<QString, QString> &options)
{
    PageLayoutSettings settings;
    for (auto it = options.begin(); it != options.end(); ++it)
        settings.set(it.key(), it.value());
    // The newer names take precedence.
    for (const QString &name : {orientationRequested, printScaling})
        settings.set(name, options.value(name));
    return settings;
}

bool PageLayoutSettings::set(const QString &name, const QString &value)
{
    if (name == numberUp) {
        bool isNumber = false;
        const int pages = value.toInt(&isNumber);
        if (!isNumber || !pagesPerSideChoices().contains(pages))
            return false;
        pagesPerSide = pages;
        return true;
    }
    if (name == outputOrder) {
        const QString wanted = value.toLower();
        if (wanted != QLatin1String("reverse") && wanted != QLatin1String("normal"))
            return false;
        isReversed = wanted == QLatin1String("reverse");
        return true;
    }
    if (name == landscape || name == fitToPage || name == fitPlot) {
        const auto on = switchValue(value);
        QString &setting = name == landscape ? orientation : scaling;
        const QString meant = name == landscape ? landscapeValue : fit;
        if (on && (*on || setting == meant))
            setting = *on ? meant : QString();
        return on.has_value();
    }
    if (name == numberUpLayout)
        return take(name, value, &order);
    if (name == pageBorder)
        return take(name, value, &border);
    if (name == orientationRequested)
        return take(name, value, &orientation);
    if (name == pageSetName)
        return take(name, value, &pageSet);
    return name == printScaling && take(name, value, &scaling);
}

QString PageLayoutSettings::takes(const QString &name)
{
    if (name == landscape || name == fitToPage || name == fitPlot)
        return LayoutText::tr("True or False");
    QStringList values = valuesOf(name);
    if (name == outputOrder)
        values = QStringList{QStringLiteral("normal"), QStringLiteral("reverse")};
    for (const int pages : name == numberUp ? pagesPerSideChoices() : QList<int>())
        values.append(QString::number(pages));
    return values.join(QStringLiteral(", "));
}

void PageLayoutSettings::takeChanges(const PageLayoutSettings &start, const PageLayoutSettings &other)
{
    const auto takeChange = [&](auto member) {
        if (other.*member != start.*member)
            this->*member = other.*member;
    };
    takeChange(&PageLayoutSettings::pagesPerSide);
    takeChange(&PageLayoutSettings::order);
    takeChange(&PageLayoutSettings::border);
    takeChange(&PageLayoutSettings::orientation);
    takeChange(&PageLayoutSettings::pageSet);
    takeChange(&PageLayoutSettings::isReversed);
    takeChange(&PageLayoutSettings::scaling);
}

QList<JobOption> PageLayoutSettings::jobOptions(const PageLayoutSettings &start,
                                                const QMap<QString, QString> &defaults) const
{
    QList<JobOption> options;
    const auto add = [&](const QString &name, const QString &value) {
        options.append({name, value, Kind::Attribute});
    };
    // The server would add a default under an older name to the options that are sent.
    const auto contradict = [&](const QString &name) {
        if (defaults.contains(name))
            add(name, QStringLiteral("false"));
    };
    if (pagesPerSide != start.pagesPerSide)
        add(numberUp, QString::number(pagesPerSide));
    if (order != start.order)
        add(numberUpLayout, order);
    if (border != start.border)
        add(pageBorder, border);
    if (orientation != start.orientation) {
        add(orientationRequested, orientation.isEmpty() ? QStringLiteral("3") : orientation);
        contradict(landscape);
    }
    if (pageSet != start.pageSet)
        add(pageSetName, pageSet);
    if (isReversed != start.isReversed)
        add(outputOrder, isReversed ? QStringLiteral("reverse") : QStringLiteral("normal"));
    if (scaling != start.scaling) {
        add(printScaling, scaling.isEmpty() ? QStringLiteral("auto") : scaling);
        // The PostScript filter supports only this option.
        if (scaling == fit)
            add(fitToPage, QStringLiteral("true"));
        else
            contradict(fitToPage);
        contradict(fitPlot);
    }
    return options;
}

QMap<QString, QString> PageLayoutSettings::values() const
{
    QMap<QString, QString> values = {
        {numberUp, QString::number(pagesPerSide)},
        {numberUpLayout, order},
        {pageBorder, border},
        {pageSetName, pageSet},
        {outputOrder, isReversed ? QStringLiteral("reverse") : QStringLiteral("normal")}};
    if (!orientation.isEmpty())
        values.insert(orientationRequested, orientation);
    if (!scaling.isEmpty())
        values.insert(printScaling, scaling);
    return values;
}

QList<PageLayoutSettings::Words> PageLayoutSettings::inWords(bool withUsual) const
{
    const PageLayoutSettings usual;
    QList<Words> words;
    const auto add = [&](bool isUsual, const QString &key, const QString &name, const QString &value) {
        if (withUsual || !isUsual)
            words.append({key, name, value});
    };
    add(pagesPerSide == 1, numberUp, LayoutText::tr("Pages per side"), QString::number(pagesPerSide));
    add(pagesPerSide == 1, numberUpLayout, LayoutText::tr("Order"), layoutValueText(numberUpLayout, order));
    add(border == usual.border, pageBorder, LayoutText::tr("Border"), layoutValueText(pageBorder, border));
    add(orientation == usual.orientation, orientationRequested, LayoutText::tr("Orientation"),
        layoutValueText(orientationRequested, orientation));
    add(scaling == usual.scaling, printScaling, LayoutText::tr("Scaling"),
        layoutValueText(printScaling, scaling));
    add(pageSet == usual.pageSet, pageSetName, LayoutText::tr("Odd or even"),
        layoutValueText(pageSetName, pageSet));
    add(!isReversed, outputOrder, LayoutText::tr("Last page first"),
        isReversed ? LayoutText::tr("On") : LayoutText::tr("Off"));
    return words;
}

bool PageLayoutSettings::covers(const QString &name)
{
    static const QStringList names = {numberUp,    numberUpLayout, pageBorder,   orientationRequested,
                                      pageSetName, outputOrder,    printScaling, landscape,
                                      fitToPage,   fitPlot};
    return names.contains(name);
}

bool isPageOption(const QString &name)
{
    static const QStringList others = {QStringLiteral("mirror"),      QStringLiteral("page-left"),
                                       QStringLiteral("page-right"),  QStringLiteral("page-top"),
                                       QStringLiteral("page-bottom"), QStringLiteral("position"),
                                       QStringLiteral("scaling"),     QStringLiteral("natural-scaling"),
                                       QStringLiteral("ppi"),         QStringLiteral("cpi"),
                                       QStringLiteral("lpi"),         QStringLiteral("columns"),
                                       QStringLiteral("wrap"),        QStringLiteral("prettyprint"),
                                       QStringLiteral("crop-to-fit")};
    return PageLayoutSettings::covers(name) || others.contains(name);
}

} // namespace host
