// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "constraints/choice_state.h"
#include "constraints/engine.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

struct ppd_choice_s;
struct ppd_file_s;
struct ppd_option_s;
struct ppd_size_s;

namespace constraints {

// Applies libcups's constraint rules to the marks of an open PPD, without libcups, which would evaluate every
// line for each query. The PPD is borrowed and outlives this object. A caller that marks choices calls
// refresh() before the next query. Names have the PPD's spelling and are views of its bytes.
class PpdRules
{
public:
    struct Forbidden
    {
        std::string_view choice;
        Line line; // a line that forbids the choice
    };

    explicit PpdRules(ppd_file_s *ppd);
    PpdRules(const PpdRules &) = delete;
    PpdRules &operator=(const PpdRules &) = delete;

    // Takes over the current marks. Cheap if nothing has changed.
    void refresh();

    const Engine &engine() const { return m_engine; }
    // The violated lines, as ppdConflicts() counts them.
    std::vector<Line> brokenLines() const { return m_state.activeLines(); }
    // The lines that libcups's list leaves out, in ascending order: pairs that are followed by the same pair
    // in reverse order. Determined by the first call.
    const std::vector<Line> &linesNotInLibcups() const;
    // The violated lines and those that could be while these are resolved, in ascending order.
    std::vector<Line> linesNearConflicts() const;
    // The choices of an option that are forbidden together with the marks of other options, in the order of
    // the PPD.
    std::vector<Forbidden> forbiddenChoices(std::string_view option) const;
    // A number that changes whenever the result of forbiddenChoices() for the option may have changed.
    std::uint32_t revision(Option option) const { return option == none ? 0 : m_state.revision(option); }

private:
    using Mark = std::pair<Option, const ppd_choice_s *>;

    std::vector<const ppd_choice_s *> markedChoices() const;
    std::vector<Mark> marksOf(const std::vector<const ppd_choice_s *> &marked) const;
    void readMarks(Option option);

    ppd_file_s *m_ppd;
    Engine m_engine;
    ChoiceState m_state;
    std::vector<std::pair<const ppd_option_s *, Option>> m_options; // by record
    Option m_pageSize, m_pageRegion;
    std::vector<const ppd_choice_s *> m_marked;
    std::vector<Mark> m_marks; // by option
    const ppd_size_s *m_size = nullptr;
    mutable std::optional<std::vector<Line>> m_notInLibcups;
};

} // namespace constraints
