// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "constraints/ppd_rules.h"

#include "constraints/ppd_lines.h"

#include <cups/ppd.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <string>
#include <utility>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace constraints {

namespace {

bool isOffName(std::string_view choice)
{
    constexpr std::array<std::string_view, 3> off{"None", "Off", "False"};
    return std::ranges::any_of(off, [choice](auto name) { return isSameName(name, choice); });
}

} // namespace

PpdRules::PpdRules(ppd_file_s *ppd)
    : m_ppd(ppd), m_engine(linesAsUnderstood(ppd)), m_state(&m_engine), m_pageSize(none), m_pageRegion(none)
{
    for (Option option = 0; option < m_engine.optionCount(); ++option) {
        const std::string name(m_engine.optionName(option));
        if (const ppd_option_t *record = ppdFindOption(ppd, name.c_str()))
            m_options.emplace_back(record, option);
        if (isSameName(name, pageSizeName))
            m_pageSize = option;
        else if (isSameName(name, pageRegionName))
            m_pageRegion = option;
    }
    std::ranges::sort(m_options);
    refresh();
}

std::vector<const ppd_choice_s *> PpdRules::markedChoices() const
{
    std::vector<const ppd_choice_s *> marked;
    marked.reserve(std::size_t(cupsArrayCount(m_ppd->marked)));
    cupsArraySave(m_ppd->marked);
    for (void *choice = cupsArrayFirst(m_ppd->marked); choice; choice = cupsArrayNext(m_ppd->marked))
        marked.push_back(static_cast<const ppd_choice_t *>(choice));
    cupsArrayRestore(m_ppd->marked);
    return marked;
}

std::vector<PpdRules::Mark> PpdRules::marksOf(const std::vector<const ppd_choice_s *> &marked) const
{
    std::vector<Mark> marks;
    for (const ppd_choice_t *choice : marked) {
        const ppd_option_t *record = choice->option;
        const auto found =
            std::ranges::lower_bound(m_options, record, {}, [](auto &entry) { return entry.first; });
        if (found != m_options.end() && found->first == record)
            marks.emplace_back(found->second, choice);
    }
    std::ranges::sort(marks);
    return marks;
}

void PpdRules::refresh()
{
    auto marked = markedChoices();
    const ppd_size_t *size = ppdPageSize(m_ppd, nullptr);
    if (marked == m_marked && size == m_size)
        return;
    auto marks = marksOf(marked);
    std::vector<Mark> different;
    std::ranges::set_symmetric_difference(marks, m_marks, std::back_inserter(different));
    std::set<Option> changed;
    for (const Mark &mark : different)
        changed.insert(mark.first);
    if (std::exchange(m_size, size) != size && m_pageSize != none)
        changed.insert(m_pageSize);
    m_marked = std::move(marked);
    m_marks = std::move(marks);
    for (const Option option : changed)
        readMarks(option);
}

void PpdRules::readMarks(Option option)
{
    std::vector<Choice> chosen;
    bool isOn = false;
    auto mark = std::ranges::lower_bound(m_marks, option, {}, &Mark::first);
    for (; mark != m_marks.end() && mark->first == option; ++mark) {
        isOn |= !isOffName(mark->second->choice);
        if (option != m_pageSize)
            chosen.push_back(m_engine.findChoice(option, mark->second->choice));
    }
    // libcups stores the size separately from the marks: marking PageRegion removes the mark of PageSize.
    if (option == m_pageSize && m_size) {
        const auto [first, end] = m_engine.choicesOf(option);
        for (Choice choice = first; choice < end; ++choice) {
            if (isSameName(m_engine.choiceName(choice), m_size->name))
                chosen.push_back(choice);
        }
    }
    m_state.set(option, chosen, isOn);
    m_state.touch(option);
}

const std::vector<Line> &PpdRules::linesNotInLibcups() const
{
    if (m_notInLibcups)
        return *m_notInLibcups;
    m_notInLibcups.emplace();
    for (Line next = 1; next < m_engine.lineCount(); ++next) {
        const auto terms = m_engine.terms(next - 1), nextTerms = m_engine.terms(next);
        if (std::equal(terms.rbegin(), terms.rend(), nextTerms.begin(), nextTerms.end()))
            m_notInLibcups->push_back(next - 1);
    }
    return *m_notInLibcups;
}

// Starts with the violated lines, and adds each line that changes to options of these lines can violate.
// Every line that is left out has a term of another option that does not hold, so no such change violates it.
std::vector<Line> PpdRules::linesNearConflicts() const
{
    std::vector<bool> isNamed(m_engine.optionCount()), isNear(m_engine.lineCount());
    std::vector<Line> near;
    std::vector<Option> toVisit;
    const auto name = [&](Option option) {
        if (option == none || isNamed[option])
            return;
        isNamed[option] = true;
        toVisit.push_back(option);
    };
    const auto add = [&](Line line) {
        isNear[line] = true;
        near.push_back(line);
        for (const Choice term : m_engine.terms(line))
            name(m_engine.optionOf(term));
    };
    const auto mayHold = [&](Choice term) { return isNamed[m_engine.optionOf(term)] || m_state.holds(term); };
    std::ranges::for_each(brokenLines(), add);
    while (!toVisit.empty()) {
        const Option option = toVisit.back();
        toVisit.pop_back();
        if (option == m_pageSize || option == m_pageRegion) { // a change of one of them changes the other
            name(m_pageSize);
            name(m_pageRegion);
        }
        const auto [first, end] = m_engine.choicesOf(option);
        for (Choice choice = first; choice < end; ++choice) {
            for (const Line line : m_engine.linesOf(choice)) {
                if (!isNear[line] && std::ranges::all_of(m_engine.terms(line), mayHold))
                    add(line);
            }
        }
    }
    std::ranges::sort(near);
    return near;
}

std::vector<PpdRules::Forbidden> PpdRules::forbiddenChoices(std::string_view option) const
{
    std::vector<Forbidden> forbidden;
    const Option number = m_engine.findOption(option);
    if (number == none)
        return forbidden;
    const ppd_option_t *record = ppdFindOption(m_ppd, std::string(option).c_str());
    for (int i = 0; record && i < record->num_choices; ++i) {
        const std::string_view name = record->choices[i].choice;
        const Line line = m_state.obstacle(number, m_engine.findChoice(number, name), !isOffName(name));
        if (line != none)
            forbidden.push_back({name, line});
    }
    return forbidden;
}

} // namespace constraints
