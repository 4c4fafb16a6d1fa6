// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/term_table.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace constraints {

using Option = std::uint32_t;
using Choice = std::uint32_t; // a choice of one option; the choices of an option are consecutive
using Line = std::uint32_t;
inline constexpr std::uint32_t none = ~0U; // no such option, choice or line

// The constraints of a PPD: lines of terms that must not all hold at the same time. Options and choices are
// numbered once, when the engine is built, and all queries use these numbers; frequent callers should keep
// them. Immutable. Names are bytes and compared exactly. Only options and choices that occur in a line have a
// number. The engine does not interpret an empty choice in a line: it is a choice with an empty name.
class Engine
{
public:
    Engine() = default;
    // `lines` lists the numbers of the terms of each line, terminated by `none`; repeated terms of a line
    // count once. Copies the names.
    Engine(const std::vector<Term> &terms, std::span<const std::uint32_t> lines);

    std::uint32_t optionCount() const { return std::uint32_t(m_optionNames.size()); }
    std::uint32_t choiceCount() const { return std::uint32_t(m_choiceNames.size()); }
    std::uint32_t lineCount() const { return std::uint32_t(m_lineStarts.size()) - 1; }

    // `none` if no line names it.
    Option findOption(std::string_view name) const;
    Choice findChoice(Option option, std::string_view name) const;
    std::string_view optionName(Option option) const { return nameAt(m_optionNames[option]); }
    std::string_view choiceName(Choice choice) const { return nameAt(m_choiceNames[choice]); }
    Option optionOf(Choice choice) const { return m_optionOfChoice[choice]; }
    // The range of choices, past-the-end included; the empty choice, if lines name it, is the first.
    std::pair<Choice, Choice> choicesOf(Option option) const
    {
        return {m_choiceStarts[option], m_choiceStarts[option + 1]};
    }

    std::span<const Choice> terms(Line line) const
    {
        return std::span(m_terms).subspan(m_lineStarts[line], m_lineStarts[line + 1] - m_lineStarts[line]);
    }
    std::span<const Line> linesOf(Choice choice) const
    {
        return std::span(m_rows).subspan(m_rowStarts[choice], m_rowStarts[choice + 1] - m_rowStarts[choice]);
    }
    // Whether a line consists of exactly these two, in any order. False if either is `none`.
    bool isPair(Choice first, Choice second) const;

private:
    struct Name
    {
        std::uint32_t start;
        std::uint32_t size;
    };
    std::string_view nameAt(Name name) const
    {
        return std::string_view(m_bytes).substr(name.start, name.size);
    }
    Name store(std::string_view name);
    // The number of each term, by its index.
    std::vector<Choice> numberNames(const std::vector<Term> &terms);
    void keepLines(const std::vector<Choice> &numbers, std::span<const std::uint32_t> lines);
    void fillRows();

    std::string m_bytes; // all names
    std::vector<Name> m_optionNames;
    std::vector<Name> m_choiceNames;
    std::vector<Choice> m_choiceStarts{0}; // per option, and one past the last
    std::vector<Option> m_optionOfChoice;
    std::vector<std::uint32_t> m_lineStarts{0}; // into m_terms
    std::vector<Choice> m_terms;
    std::vector<std::uint32_t> m_rowStarts{0}; // into m_rows
    std::vector<Line> m_rows;                  // the lines in which each choice is a term
};

} // namespace constraints
