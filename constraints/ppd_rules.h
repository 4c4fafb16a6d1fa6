// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/choice_state.h"
#include "constraints/engine.h"

#include <cstdint>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

struct ppd_choice_s;
struct ppd_file_s;
struct ppd_option_s;
struct ppd_size_s;

namespace constraints {

// What libcups's rules say about the marks of an open PPD, without asking libcups, whose answer takes a look
// at every line. The PPD is borrowed and outlives it; a caller that marks choices calls refresh() before the
// next question. Names are as the PPD spells them, and views of its bytes.
class PpdRules
{
public:
    struct Forbidden
    {
        std::string_view choice;
        Line line; // one that stands in the way
    };

    explicit PpdRules(ppd_file_s *ppd);
    PpdRules(const PpdRules &) = delete;
    PpdRules &operator=(const PpdRules &) = delete;

    // Takes over what is marked now. Costs little when nothing has changed.
    void refresh();

    const Engine &engine() const { return m_engine; }
    // The lines that are broken, as ppdConflicts() counts them.
    std::vector<Line> brokenLines() const { return m_state.activeLines(); }
    // The choices of an option that lines forbid together with the marks of other options, in the PPD's
    // order.
    std::vector<Forbidden> forbiddenChoices(std::string_view option) const;
    // Another number whenever forbiddenChoices() may have changed for the option.
    std::uint32_t revision(std::string_view option) const;

private:
    using Mark = std::pair<Option, const ppd_choice_s *>;

    std::vector<const ppd_choice_s *> markedChoices() const;
    std::vector<Mark> marksOf(const std::vector<const ppd_choice_s *> &marked) const;
    void setMarks(Option option, std::span<const Mark> marks);

    ppd_file_s *m_ppd;
    Engine m_engine;
    ChoiceState m_state;
    std::vector<std::pair<const ppd_option_s *, Option>> m_options; // by record
    Option m_pageSize;
    std::vector<const ppd_choice_s *> m_marked;
    std::vector<Mark> m_marks; // by option
    const ppd_size_s *m_size = nullptr;
};

} // namespace constraints
