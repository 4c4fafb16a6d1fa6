// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/session/general_settings.h"

#include <QList>

namespace host {

// The paper consumption of a job. A value.
struct JobCost
{
    int sheets = 0;
    int sides = 0; // printed sides

    bool operator==(const JobCost &) const = default;
};

// The cost of printing documents with these numbers of pages. Each document, and each copy, begins on a new
// sheet. Page ranges and odd or even pages count printed sides, as in the print system. Pages that the
// printer omits or adds, such as blank pages and cover sheets, are not counted.
JobCost jobCost(const GeneralSettings &general, bool isTwoSided, const QList<int> &pages);

} // namespace host
