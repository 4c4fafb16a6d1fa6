// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/service/portal_settings.h"

#include <QJsonArray>

#include <algorithm>
#include <array>
#include <cmath>

namespace host {

namespace {

constexpr qsizetype longestName = 256;
constexpr qsizetype longestValue = 4096; // characters
constexpr qsizetype mostValues = 4096;
constexpr int mostCopies = 9999;
constexpr double mostPercent = 1000;   // the dialog checks its own range
constexpr int afterAllPages = 999'999; // the end of open ranges

const QString optionPrefix = QStringLiteral("cups-");

struct NamePair
{
    const char *portal;
    const char *print; // PPD keyword or standard name
};
constexpr std::array<NamePair, 3> sameValues = {
    {{"media-type", "MediaType"}, {"default-source", "InputSlot"}, {"output-bin", "OutputBin"}}};
constexpr std::array<NamePair, 3> sides = {
    {{"simplex", "one-sided"}, {"horizontal", "two-sided-long-edge"}, {"vertical", "two-sided-short-edge"}}};
constexpr std::array<NamePair, 3> duplexChoices = {
    {{"simplex", "None"}, {"horizontal", "DuplexNoTumble"}, {"vertical", "DuplexTumble"}}};

QString textOf(const QJsonObject &object, const char *name)
{
    return object.value(QLatin1String(name)).toString();
}

// Converts a list of ranges counted from `from` to one counted from `to`. Empty if the list is not valid.
QString movedRanges(const QString &ranges, int from, int to, int openEnd)
{
    QStringList moved;
    for (const QString &part : ranges.split(QLatin1Char(','))) {
        const qsizetype dash = part.indexOf(QLatin1Char('-'));
        const QString lastText = dash < 0 ? part : part.mid(dash + 1);
        bool isFirst = false, isLast = false;
        const int first = part.left(dash).trimmed().toInt(&isFirst);
        int last = lastText.trimmed().toInt(&isLast);
        if (lastText.trimmed().isEmpty() && dash > 0 && openEnd > 0)
            last = openEnd, isLast = true;
        if (!isFirst || !isLast || first < from || last < first || last > afterAllPages)
            return {};
        const QString begin = QString::number(first - from + to);
        moved.append(first == last ? begin : begin + QLatin1Char('-') + QString::number(last - from + to));
    }
    return moved.join(QLatin1Char(','));
}

void addPaper(const QJsonObject &pageSetup, NamedValues *choices)
{
    const double width = pageSetup.value(QLatin1String("Width")).toDouble();
    const double height = pageSetup.value(QLatin1String("Height")).toDouble();
    const auto isSize = [](double mm) { return std::isfinite(mm) && mm >= 10 && mm <= 10'000; };
    if (isSize(width) && isSize(height)) {
        // The dimensions identify the size even if the printer and the application use different names.
        choices->append({QStringLiteral("media"),
                         QStringLiteral("custom_%1x%2mm_%1x%2mm")
                             .arg(QString::number(width, 'f', 2), QString::number(height, 'f', 2))});
    }
    if (const QString name = textOf(pageSetup, "PPDName"); !name.isEmpty())
        choices->append({QStringLiteral("PageSize"), name});
}

// Page settings that are applied here instead of by GTK.
NamedValues serverOptions(const QJsonObject &settings)
{
    NamedValues options;
    static const QStringList sheets = {QStringLiteral("2"), QStringLiteral("4"), QStringLiteral("6"),
                                       QStringLiteral("9"), QStringLiteral("16")};
    static const QStringList layouts = {
        QStringLiteral("lrtb"), QStringLiteral("lrbt"), QStringLiteral("rltb"), QStringLiteral("rlbt"),
        QStringLiteral("tblr"), QStringLiteral("tbrl"), QStringLiteral("btlr"), QStringLiteral("btrl")};
    if (const QString pages = textOf(settings, "number-up"); sheets.contains(pages)) {
        options.append({QStringLiteral("number-up"), pages});
        if (const QString layout = textOf(settings, "number-up-layout"); layouts.contains(layout))
            options.append({QStringLiteral("number-up-layout"), layout});
    }
    if (textOf(settings, "reverse") == QLatin1String("true"))
        options.append({QStringLiteral("outputorder"), QStringLiteral("reverse")});
    static const QStringList sets = {QStringLiteral("odd"), QStringLiteral("even")};
    if (const QString set = textOf(settings, "page-set"); sets.contains(set))
        options.append({QStringLiteral("page-set"), set});
    const double percent = textOf(settings, "scale").toDouble();
    if (percent >= 1 && percent <= mostPercent && std::lround(percent) != 100)
        options.append({QStringLiteral("natural-scaling"), QString::number(std::lround(percent))});
    return options;
}

} // namespace

QJsonObject plainValues(const QVariantMap &map)
{
    QJsonObject values;
    for (auto it = map.begin(); it != map.end() && values.size() < mostValues; ++it) {
        if (it.key().isEmpty() || it.key().size() > longestName)
            continue;
        const int type = it.value().metaType().id();
        if (type == QMetaType::QString && it.value().toString().size() <= longestValue)
            values.insert(it.key(), it.value().toString());
        else if (type == QMetaType::Double && std::isfinite(it.value().toDouble()))
            values.insert(it.key(), it.value().toDouble());
        else if (type == QMetaType::Bool)
            values.insert(it.key(), it.value().toBool());
    }
    return values;
}

QJsonObject applicationAbilities(const QVariantMap &options)
{
    QJsonObject abilities;
    const QStringList formats =
        options.value(QStringLiteral("supported_output_file_formats")).toStringList().mid(0, 100);
    if (!formats.isEmpty())
        abilities.insert(QStringLiteral("formats"), QJsonArray::fromStringList(formats));
    if (options.value(QStringLiteral("has_current_page")).toBool())
        abilities.insert(QStringLiteral("currentPage"), true);
    if (options.value(QStringLiteral("has_selected_pages")).toBool())
        abilities.insert(QStringLiteral("selection"), true);
    return abilities;
}

StartingSettings startingSettings(const QJsonObject &settings, const QJsonObject &pageSetup)
{
    StartingSettings start;
    start.printer = textOf(settings, "printer");
    start.copies = std::clamp(textOf(settings, "n-copies").toInt(), 1, mostCopies);
    if (const QString collate = textOf(settings, "collate"); !collate.isEmpty())
        start.collate = collate == QLatin1String("true");
    if (textOf(settings, "print-pages") == QLatin1String("ranges"))
        start.pages = movedRanges(textOf(settings, "page-ranges"), 0, 1, 0);
    start.currentPage = textOf(settings, "print-pages") == QLatin1String("current");
    start.selection = textOf(settings, "print-pages") == QLatin1String("selection");
    addPaper(pageSetup, &start.choices);
    for (const NamePair &name : sameValues) {
        if (const QString value = textOf(settings, name.portal); !value.isEmpty())
            start.choices.append({QLatin1String(name.print), value});
    }
    const QString duplex = textOf(settings, "duplex");
    for (const NamePair &side : sides) {
        if (duplex == QLatin1String(side.portal))
            start.choices.append({QStringLiteral("sides"), QLatin1String(side.print)});
    }
    // Options of the printer come last, since an application that sets them is more specific.
    for (auto it = settings.begin(); it != settings.end(); ++it) {
        if (it.key().startsWith(optionPrefix))
            start.choices.append({it.key().mid(optionPrefix.size()), it.value().toString()});
    }
    start.jobOptions = serverOptions(settings);
    return start;
}

QJsonObject settingsForApplication(const QJsonObject &sent, const ApplicationChoice &choice)
{
    QJsonObject settings;
    static const QStringList decided = {
        QStringLiteral("n-copies"),       QStringLiteral("collate"),          QStringLiteral("reverse"),
        QStringLiteral("number-up"),      QStringLiteral("number-up-layout"), QStringLiteral("scale"),
        QStringLiteral("page-set"),       QStringLiteral("print-pages"),      QStringLiteral("page-ranges"),
        QStringLiteral("output-uri"),     QStringLiteral("duplex"),           QStringLiteral("media-type"),
        QStringLiteral("default-source"), QStringLiteral("output-bin")};
    for (auto it = sent.begin(); it != sent.end(); ++it) {
        if (it.value().isString() && !it.key().startsWith(optionPrefix) && !decided.contains(it.key()))
            settings.insert(it.key(), it.value());
    }
    settings.insert(QStringLiteral("printer"), choice.printer);
    settings.insert(QStringLiteral("output-file-format"), choice.format);
    const QString ranges = movedRanges(choice.pages, 1, 0, afterAllPages);
    settings.insert(QStringLiteral("print-pages"),
                    ranges.isEmpty() ? QStringLiteral("all") : QStringLiteral("ranges"));
    if (choice.currentPage || choice.selection)
        settings.insert(QStringLiteral("print-pages"),
                        choice.currentPage ? QStringLiteral("current") : QStringLiteral("selection"));
    else if (!ranges.isEmpty())
        settings.insert(QStringLiteral("page-ranges"), ranges);
    for (const auto &[keyword, value] : choice.choices) {
        settings.insert(optionPrefix + keyword, value);
        for (const NamePair &name : sameValues) {
            if (keyword == QLatin1String(name.print))
                settings.insert(QLatin1String(name.portal), value);
        }
        for (const NamePair &name : duplexChoices) {
            if (keyword == QLatin1String("Duplex") && value == QLatin1String(name.print))
                settings.insert(QStringLiteral("duplex"), QLatin1String(name.portal));
        }
    }
    return settings;
}

QJsonObject pageSetupForApplication(const QJsonObject &sent, const Paper &paper)
{
    QJsonObject setup = sent;
    if (!setup.contains(QLatin1String("Orientation")))
        setup.insert(QStringLiteral("Orientation"), QStringLiteral("portrait"));
    const bool isSame = !textOf(sent, "PPDName").isEmpty() && textOf(sent, "PPDName") == paper.keyword;
    if (paper.width <= 0 || paper.height <= 0 || isSame)
        return setup;
    setup.remove(QStringLiteral("Name"));
    setup.insert(QStringLiteral("PPDName"), paper.keyword);
    setup.insert(QStringLiteral("DisplayName"), paper.text);
    setup.insert(QStringLiteral("Width"), paper.width);
    setup.insert(QStringLiteral("Height"), paper.height);
    setup.insert(QStringLiteral("MarginLeft"), paper.left);
    setup.insert(QStringLiteral("MarginRight"), paper.right);
    setup.insert(QStringLiteral("MarginTop"), paper.top);
    setup.insert(QStringLiteral("MarginBottom"), paper.bottom);
    return setup;
}

} // namespace host
