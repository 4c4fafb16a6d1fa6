// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/printing/loaded_media.h"

#include "host/printing/ppd_document.h"

#include <QCoreApplication>
#include <QMap>

#include <algorithm>
#include <cmath>

namespace host {

namespace {

struct LoadedText
{
    Q_DECLARE_TR_FUNCTIONS(LoadedText)
};

const QString sizeName = QStringLiteral("PageSize");
const QString typeName = QStringLiteral("MediaType");
const QString sourceName = QStringLiteral("InputSlot");
constexpr double tolerance = 2; // millimetres; names of sizes are rounded to inches or points

bool isSameLength(double one, double other)
{
    return std::abs(one - other) <= tolerance;
}

// A sheet may be fed by either edge.
bool isSameSize(const PaperSize &paper, const LoadedTray &tray)
{
    return (isSameLength(paper.width, tray.width) && isSameLength(paper.height, tray.length)) ||
           (isSameLength(paper.width, tray.length) && isSameLength(paper.height, tray.width));
}

// Whether a choice leaves the decision to the printer.
bool isAutomatic(const QString &choice)
{
    return choice.isEmpty() || choice.contains(QLatin1String("auto"), Qt::CaseInsensitive) ||
           choice.contains(QLatin1String("default"), Qt::CaseInsensitive) ||
           choice.compare(QLatin1String("any"), Qt::CaseInsensitive) == 0;
}

// "tray-1" and "Tray1" without the differences in spelling.
QString lettersOf(const QString &keyword)
{
    QString letters;
    for (const QChar c : keyword) {
        if (c.isLetterOrNumber())
            letters += c.toLower();
    }
    return letters;
}

// The choices of an option for values of IPP. In the PPDs that CUPS generates, they only differ in spelling;
// for others libcups is asked, which takes some milliseconds if the PPD has thousands of constraints.
class ChoicesByValue
{
public:
    ChoicesByValue(PpdDocument *ppd, const QString &option) : m_ppd(ppd), m_name(option)
    {
        const auto known = ppd->option(option);
        for (const PpdOption::Choice &choice : known ? known->choices : QList<PpdOption::Choice>())
            m_choices.insert(lettersOf(choice.keyword), choice.keyword);
    }
    // Empty if there is none.
    QString choiceFor(const QString &value)
    {
        if (value.isEmpty() || m_choices.isEmpty())
            return {};
        const QString letters = lettersOf(value);
        if (!m_choices.contains(letters) && m_asked++ < mostAsked)
            m_choices.insert(letters, m_ppd->standardChoices(QStringLiteral("media"), value).value(m_name));
        return m_choices.value(letters);
    }

private:
    static constexpr int mostAsked = 4;
    PpdDocument *m_ppd;
    QString m_name;
    QMap<QString, QString> m_choices;
    int m_asked = 0;
};

template <typename Trays, typename Condition>
bool hasAny(const Trays &trays, Condition condition)
{
    return std::any_of(trays.begin(), trays.end(), condition);
}

} // namespace

LoadedMedia::LoadedMedia(PpdDocument *ppd, const QList<LoadedTray> &trays)
{
    ChoicesByValue sources(ppd, sourceName), types(ppd, typeName);
    for (const LoadedTray &tray : trays) {
        const QString source = sources.choiceFor(tray.source);
        m_trays.append({tray, isAutomatic(source) ? QString() : source, types.choiceFor(tray.type)});
    }
}

// All trays if the printer selects one, or if it does not report one of them by name.
QList<LoadedMedia::Tray> LoadedMedia::traysFor(const QString &source) const
{
    if (isAutomatic(source) || hasAny(m_trays, [](const Tray &tray) { return tray.source.isEmpty(); }))
        return m_trays;
    QList<Tray> trays = m_trays;
    trays.removeIf([&](const Tray &tray) { return tray.source != source; });
    return trays;
}

QStringList LoadedMedia::missing(const PpdDocument &ppd) const
{
    if (m_trays.isEmpty())
        return {};
    const auto text = [&ppd](const QString &option) {
        return ppd.described(option, ppd.markedChoice(option)).choiceText;
    };
    const QList<Tray> trays = traysFor(ppd.markedChoice(sourceName));
    if (trays.isEmpty())
        return {LoadedText::tr("Nothing is loaded in “%1”.").arg(text(sourceName))};
    const bool isOneTray = trays.size() < m_trays.size();
    const auto notLoaded = [&](const QString &option) {
        return isOneTray ? LoadedText::tr("“%1” is not loaded in “%2”.").arg(text(option), text(sourceName))
                         : LoadedText::tr("“%1” is not loaded in any tray.").arg(text(option));
    };
    const auto paper = ppd.paperSize(ppd.markedChoice(sizeName));
    const auto isSize = [&paper](const Tray &tray) {
        return !paper || tray.media.width <= 0 || isSameSize(*paper, tray.media);
    };
    const QString type = ppd.markedChoice(typeName);
    const auto isType = [&type](const Tray &tray) {
        return isAutomatic(type) || tray.type.isEmpty() || tray.type == type;
    };
    QStringList missing;
    if (!hasAny(trays, isSize))
        missing.append(notLoaded(sizeName));
    if (!hasAny(trays, isType))
        missing.append(notLoaded(typeName));
    if (missing.isEmpty() && !hasAny(trays, [&](const Tray &tray) { return isSize(tray) && isType(tray); }))
        missing.append(
            LoadedText::tr("“%1” is loaded, but not as “%2”.").arg(text(sizeName), text(typeName)));
    return missing;
}

} // namespace host
