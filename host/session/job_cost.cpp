// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/job_cost.h"

#include <QStringList>

#include <algorithm>

namespace host {

namespace {

// The number of pages from `first` to `last` that are in the page set.
int countIn(const QString &pageSet, int first, int last)
{
    if (last < first)
        return 0;
    const int odd = (last + 1) / 2 - first / 2;
    if (pageSet == QLatin1String("odd"))
        return odd;
    return pageSet == QLatin1String("even") ? last - first + 1 - odd : last - first + 1;
}

// The printed sides of a document that has this number of sides before pages are selected. The ranges are
// normalized, so they do not overlap.
int chosenSides(const GeneralSettings &general, int sides)
{
    const QString pageSet = general.layout.value(QStringLiteral("page-set"));
    if (general.pages.isEmpty())
        return countIn(pageSet, 1, sides);
    int chosen = 0;
    for (const QString &range : general.pages.split(QLatin1Char(','))) {
        const QString first = range.section(QLatin1Char('-'), 0, 0);
        const QString last = range.contains(QLatin1Char('-')) ? range.section(QLatin1Char('-'), 1) : first;
        chosen += countIn(pageSet, std::max(1, first.toInt()),
                          last.isEmpty() ? sides : std::min(sides, last.toInt()));
    }
    return chosen;
}

} // namespace

JobCost jobCost(const GeneralSettings &general, bool isTwoSided, const QList<int> &pages)
{
    JobCost cost;
    for (const int count : pages) {
        const int sides = chosenSides(general, general.layout.sidesOf(count));
        cost.sides += sides * general.copies;
        cost.sheets += (isTwoSided ? (sides + 1) / 2 : sides) * general.copies;
    }
    return cost;
}

} // namespace host
