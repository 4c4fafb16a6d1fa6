// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "constraints/ppd_evaluation.h"

#include "constraints/ppd_rules.h"

#include <cups/ppd.h>

#include <algorithm>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace constraints {

void PpdEvaluation::Free::operator()(_cups_array_s *array) const
{
    cupsArrayDelete(array);
}

PpdEvaluation::PpdEvaluation(ppd_file_s *ppd)
    : m_ppd(ppd), m_all(ppd->cups_uiconstraints), m_limited(cupsArrayNew(nullptr, nullptr))
{
    ppd->cups_uiconstraints = m_limited.get();
}

// The entries of libcups's list are private. They are selected by position, which requires that both lists
// have the same length; otherwise there is no limit.
PpdEvaluation::PpdEvaluation(ppd_file_s *ppd, const PpdRules &rules)
    : m_ppd(ppd), m_all(ppd->cups_uiconstraints)
{
    const std::vector<Line> &leftOut = rules.linesNotInLibcups();
    if (int(rules.engine().lineCount() - leftOut.size()) != cupsArrayCount(m_all) ||
        ppdFindAttr(ppd, "cupsUIConstraints", nullptr))
        return;
    m_limited.reset(cupsArrayNew(nullptr, nullptr));
    for (const Line line : rules.linesNearConflicts()) {
        const auto next = std::ranges::lower_bound(leftOut, line);
        if (next != leftOut.end() && *next == line)
            continue;
        const auto position = int(line) - int(next - leftOut.begin());
        cupsArrayAdd(m_limited.get(), cupsArrayIndex(m_all, position));
    }
    ppd->cups_uiconstraints = m_limited.get();
}

PpdEvaluation::~PpdEvaluation()
{
    if (m_limited)
        m_ppd->cups_uiconstraints = m_all;
}

} // namespace constraints
