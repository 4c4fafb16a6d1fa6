// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/session/job_cost.h"

#include "host/printing/page_ranges.h"

namespace host {

JobCost jobCost(const GeneralSettings &general, bool isTwoSided, const QList<int> &pages)
{
    JobCost cost;
    for (const int count : pages) {
        const int sides = countPages(general.pages, general.layout.sidesOf(count),
                                     general.layout.value(QStringLiteral("page-set")));
        cost.sides += sides * general.copies;
        cost.sheets += (isTwoSided ? (sides + 1) / 2 : sides) * general.copies;
    }
    return cost;
}

} // namespace host
