// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "constraints/engine.h"

#include <algorithm>
#include <numeric>

namespace constraints {

Engine::Engine(const std::vector<Term> &terms, std::span<const std::uint32_t> lines)
{
    keepLines(numberNames(terms), lines);
    fillRows();
}

Engine::Name Engine::store(std::string_view name)
{
    const Name stored{std::uint32_t(m_bytes.size()), std::uint32_t(name.size())};
    m_bytes += name;
    return stored;
}

// In the order of the names, so that they can be found by binary search.
std::vector<Choice> Engine::numberNames(const std::vector<Term> &terms)
{
    std::vector<std::uint32_t> order(terms.size());
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(), [&](auto a, auto b) { return terms[a] < terms[b]; });
    std::vector<Choice> numbers(terms.size());
    m_choiceStarts.clear();
    for (const std::uint32_t index : order) {
        const Term &term = terms[index];
        const auto choice = Choice(m_choiceNames.size());
        if (m_optionNames.empty() || nameAt(m_optionNames.back()) != term.option) {
            m_optionNames.push_back(store(term.option));
            m_choiceStarts.push_back(choice);
        }
        m_choiceNames.push_back(store(term.choice));
        m_optionOfChoice.push_back(Option(m_optionNames.size()) - 1);
        numbers[index] = choice;
    }
    m_choiceStarts.push_back(choiceCount());
    return numbers;
}

void Engine::keepLines(const std::vector<Choice> &numbers, std::span<const std::uint32_t> lines)
{
    m_terms.reserve(lines.size());
    for (const std::uint32_t index : lines) {
        const auto start = m_terms.begin() + m_lineStarts.back();
        if (index == none)
            m_lineStarts.push_back(std::uint32_t(m_terms.size()));
        else if (std::find(start, m_terms.end(), numbers[index]) == m_terms.end())
            m_terms.push_back(numbers[index]);
    }
}

void Engine::fillRows()
{
    // Counts the entries of each row, converts the counts into row ends, then fills each row from its end.
    m_rowStarts.assign(choiceCount() + 1, 0);
    for (const Choice choice : m_terms)
        ++m_rowStarts[choice];
    std::partial_sum(m_rowStarts.begin(), m_rowStarts.end(), m_rowStarts.begin());
    m_rows.resize(m_terms.size());
    for (Line line = lineCount(); line-- > 0;) {
        for (const Choice choice : terms(line))
            m_rows[--m_rowStarts[choice]] = line;
    }
}

Option Engine::findOption(std::string_view name) const
{
    const auto found = std::lower_bound(m_optionNames.begin(), m_optionNames.end(), name,
                                        [this](Name known, auto wanted) { return nameAt(known) < wanted; });
    return found != m_optionNames.end() && nameAt(*found) == name ? Option(found - m_optionNames.begin())
                                                                  : none;
}

Choice Engine::findChoice(Option option, std::string_view name) const
{
    if (option == none)
        return none;
    const auto [first, end] = choicesOf(option);
    const auto last = m_choiceNames.begin() + end;
    const auto found = std::lower_bound(m_choiceNames.begin() + first, last, name,
                                        [this](Name known, auto wanted) { return nameAt(known) < wanted; });
    return found != last && nameAt(*found) == name ? Choice(found - m_choiceNames.begin()) : none;
}

bool Engine::isPair(Choice first, Choice second) const
{
    if (first == none || second == none)
        return false;
    // Search the shorter row, since one choice may occur in most lines.
    if (linesOf(second).size() < linesOf(first).size())
        std::swap(first, second);
    return std::ranges::any_of(linesOf(first), [&](Line line) {
        const auto both = terms(line);
        const Choice other = both.front() == first ? both.back() : both.front();
        return other == second && both.size() == (first == second ? 1U : 2U);
    });
}

} // namespace constraints
