// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/engine.h"

#include <span>
#include <vector>

namespace constraints {

// What is chosen at present, and what the lines of an engine make of it by libcups's rules: an empty choice
// in a line holds while its option is on, any other while it is chosen. The engine is borrowed and outlives
// it.
class ChoiceState
{
public:
    explicit ChoiceState(const Engine *engine);

    // What is chosen for an option: choices by number, as far as lines name them, and whether the option is
    // on, which is what an empty choice in a line asks for.
    void set(Option option, std::span<const Choice> chosen, bool isOn);
    // Tells that the option has another choice even where its numbers are the same as before.
    void touch(Option option);
    bool holds(Choice term) const { return m_holds[term]; }

    // The lines whose terms all hold, in order.
    std::vector<Line> activeLines() const;
    // A line that would forbid a choice of an option while everything else stays; `none` when there is none.
    // `choice` is `none` for one that no line names. Lines on one option alone are not looked at.
    Line obstacle(Option option, Choice choice, bool isOn) const;
    // Another number whenever what obstacle() answers for an option may have changed.
    std::uint32_t revision(Option option) const { return m_revisions[option]; }

private:
    // The empty choice of an option, where lines name it.
    Choice anyChoice(Option option) const;
    bool wouldHold(Choice term, Option option, Choice choice, bool isOn) const;
    void announce(Choice term);

    const Engine *m_engine;
    std::vector<char> m_holds;
    std::vector<std::uint32_t> m_revisions;
    std::uint32_t m_revision = 0;
};

} // namespace constraints
