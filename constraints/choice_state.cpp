// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "constraints/choice_state.h"

#include <algorithm>

namespace constraints {

ChoiceState::ChoiceState(const Engine *engine)
    : m_engine(engine), m_holds(engine->choiceCount(), 0), m_revisions(engine->optionCount(), 0)
{
}

Choice ChoiceState::anyChoice(Option option) const
{
    const Choice first = m_engine->choicesOf(option).first;
    return m_engine->choiceName(first).empty() ? first : none;
}

void ChoiceState::set(Option option, std::span<const Choice> chosen, bool isOn)
{
    const Choice any = anyChoice(option);
    const auto [first, end] = m_engine->choicesOf(option);
    for (Choice term = first; term < end; ++term) {
        const bool holds = term == any ? isOn : std::ranges::find(chosen, term) != chosen.end();
        if (holds == bool(m_holds[term]))
            continue;
        m_holds[term] = holds;
        announce(term);
    }
}

void ChoiceState::touch(Option option)
{
    if (const Choice any = anyChoice(option); any != none)
        announce(any);
}

void ChoiceState::announce(Choice term)
{
    ++m_revision;
    const Option own = m_engine->optionOf(term);
    for (const Line line : m_engine->linesOf(term)) {
        for (const Choice other : m_engine->terms(line)) {
            if (m_engine->optionOf(other) != own)
                m_revisions[m_engine->optionOf(other)] = m_revision;
        }
    }
}

std::vector<Line> ChoiceState::activeLines() const
{
    std::vector<Line> active;
    for (Choice term = 0; term < m_holds.size(); ++term) {
        if (!m_holds[term])
            continue;
        for (const Line line : m_engine->linesOf(term)) {
            const auto terms = m_engine->terms(line);
            if (terms.front() == term && std::ranges::all_of(terms, [this](Choice t) { return holds(t); }))
                active.push_back(line);
        }
    }
    std::ranges::sort(active);
    return active;
}

bool ChoiceState::wouldHold(Choice term, Option option, Choice choice, bool isOn) const
{
    if (m_engine->optionOf(term) != option)
        return holds(term);
    return term == choice || (isOn && term == anyChoice(option));
}

Line ChoiceState::obstacle(Option option, Choice choice, bool isOn) const
{
    Line found = none;
    for (const Choice own : {choice, isOn ? anyChoice(option) : none}) {
        for (const Line line : own == none ? std::span<const Line>() : m_engine->linesOf(own)) {
            if (line >= found)
                break;
            const auto terms = m_engine->terms(line);
            const bool namesOther =
                std::ranges::any_of(terms, [&](Choice term) { return m_engine->optionOf(term) != option; });
            if (namesOther && std::ranges::all_of(
                                  terms, [&](Choice term) { return wouldHold(term, option, choice, isOn); }))
                found = line;
        }
    }
    return found;
}

} // namespace constraints
