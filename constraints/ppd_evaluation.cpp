// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "constraints/ppd_evaluation.h"

#include "constraints/ppd_rules.h"

#include <cups/ppd.h>

#include <algorithm>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace constraints {

namespace {

// The lines in libcups's list, which leaves out a pair that is followed by the same pair in reverse order.
std::vector<Line> linesInLibcups(const Engine &engine)
{
    std::vector<Line> lines;
    for (Line line = 0; line < engine.lineCount(); ++line) {
        const auto terms = engine.terms(line);
        const auto next = line + 1 < engine.lineCount() ? engine.terms(line + 1) : std::span<const Choice>();
        if (!std::equal(terms.rbegin(), terms.rend(), next.begin(), next.end()))
            lines.push_back(line);
    }
    return lines;
}

} // namespace

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
    const std::vector<Line> lines = linesInLibcups(rules.engine());
    if (int(lines.size()) != cupsArrayCount(m_all) || ppdFindAttr(ppd, "cupsUIConstraints", nullptr))
        return;
    m_limited.reset(cupsArrayNew(nullptr, nullptr));
    const std::vector<bool> isNear = rules.linesNearConflicts();
    void *entry = cupsArrayFirst(m_all);
    for (auto line = lines.begin(); entry && line != lines.end(); ++line, entry = cupsArrayNext(m_all)) {
        if (isNear[*line])
            cupsArrayAdd(m_limited.get(), entry);
    }
    ppd->cups_uiconstraints = m_limited.get();
}

PpdEvaluation::~PpdEvaluation()
{
    if (m_limited)
        m_ppd->cups_uiconstraints = m_all;
}

} // namespace constraints
