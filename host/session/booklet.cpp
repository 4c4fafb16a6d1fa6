// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/booklet.h"

#include "host/printing/standard_names.h"
#include "host/session/dialog_session.h"

namespace host {

namespace {

const QString sides = QStringLiteral("sides");

} // namespace

PageLayoutSettings layoutAsPrinted(const DialogSession &session)
{
    PageLayoutSettings layout = session.general().layout;
    for (const QString &name : PageLayoutSettings::names()) {
        const QString keyword = PageLayoutSettings::keywordFor(name);
        if (session.ppd() && !keyword.isEmpty() && session.ppd()->hasOption(keyword))
            layout.set(name, session.ppd()->markedChoice(keyword));
    }
    return layout;
}

std::optional<OptionChoice> sidesForBooklet(const DialogSession &session)
{
    if (!session.ppd())
        return std::nullopt;
    const QMap<QString, QString> choices =
        session.ppd()->standardChoices(sides, QStringLiteral("two-sided-short-edge"));
    for (auto it = choices.begin(); it != choices.end(); ++it) {
        if (!session.ppd()->forbiddenChoices(it.key()).contains(it.value()))
            return OptionChoice{it.key(), it.value(), {}, {}};
    }
    return std::nullopt;
}

QString choiceNotForBooklet(const DialogSession &session, const QString &keyword)
{
    return session.ppd()
               ? session.ppd()->standardChoices(sides, QStringLiteral("two-sided-long-edge")).value(keyword)
               : QString();
}

OptionChoice bookletChoice(bool on)
{
    const QString name = QStringLiteral("booklet");
    const QString value = PageLayoutSettings::offered(name).value(on ? 1 : 0);
    return {name, value, PageLayoutSettings::textOf(name), layoutValueText(name, value)};
}

bool areSidesWrongForBooklet(const DialogSession &session)
{
    return session.ppd() &&
           standardValueOfMarks(session.ppd(), sides, {}) == QLatin1String("two-sided-long-edge");
}

void turnSidesForBooklet(const DialogSession &session)
{
    const auto choice = areSidesWrongForBooklet(session) ? sidesForBooklet(session) : std::nullopt;
    if (choice)
        session.ppd()->mark(choice->option, choice->choice);
}

std::optional<OptionChoice> saddleStitching(const DialogSession &session)
{
    const QStringList keywords = session.ppd() ? session.ppd()->settableKeywords() : QStringList();
    for (const QString &keyword : keywords) {
        if (!keyword.contains(QLatin1String("staple"), Qt::CaseInsensitive))
            continue;
        const auto option = session.ppd()->option(keyword);
        for (const PpdOption::Choice &choice : option->choices) {
            if (choice.keyword.contains(QLatin1String("saddle"), Qt::CaseInsensitive))
                return OptionChoice{keyword, choice.keyword, {}, {}};
        }
    }
    return std::nullopt;
}

} // namespace host
