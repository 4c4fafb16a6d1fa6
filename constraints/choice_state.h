// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/engine.h"

#include <span>
#include <vector>

namespace constraints {

// The current choices, and the lines of an engine that hold for them by libcups's rules: an empty choice in a
// line holds while its option is on, any other choice while it is chosen. The engine is borrowed and outlives
// this object.
class ChoiceState
{
public:
    explicit ChoiceState(const Engine *engine);

    // Sets the choices of an option, by number, as far as lines name them, and whether the option is on,
    // which is the meaning of an empty choice in a line.
    void set(Option option, std::span<const Choice> chosen, bool isOn);
    // Marks the option as changed even if its numbers are the same as before.
    void touch(Option option);
    bool holds(Choice term) const { return m_holds[term]; }

    // The lines whose terms all hold, in order.
    std::vector<Line> activeLines() const;
    // A line that would forbid a choice of an option while all other options keep their choices; `none` if
    // there is none. `choice` is `none` for a choice that no line names. Lines that concern a single option
    // are ignored.
    Line obstacle(Option option, Choice choice, bool isOn) const;
    // A number that changes whenever the result of obstacle() for an option may have changed.
    std::uint32_t revision(Option option) const { return m_revisions[option]; }

private:
    // The empty choice of an option, if lines name it.
    Choice anyChoice(Option option) const;
    bool wouldHold(Choice term, Option option, Choice choice, bool isOn) const;
    void announce(Choice term);

    const Engine *m_engine;
    std::vector<char> m_holds;
    std::vector<std::uint32_t> m_revisions;
    std::uint32_t m_revision = 0;
};

} // namespace constraints
