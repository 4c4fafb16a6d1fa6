// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/general_settings.h"

#include <QList>

namespace host {

// What a job takes of the paper. A value.
struct JobCost
{
    int sheets = 0;
    int sides = 0; // that are printed on

    bool operator==(const JobCost &) const = default;
};

// The cost of printing documents with these numbers of pages. Each document, and each copy, begins on a sheet
// of its own. Page ranges and odd or even pages count printed sides, as the print system does. What the
// printer itself leaves out or adds, such as blank pages and cover sheets, is not counted.
JobCost jobCost(const GeneralSettings &general, bool isTwoSided, const QList<int> &pages);

} // namespace host
