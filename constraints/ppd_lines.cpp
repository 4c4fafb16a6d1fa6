// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "constraints/ppd_lines.h"

#include <cups/ppd.h>

#include <algorithm>
#include <functional>
#include <optional>

// Together with ppd_rules.cpp and ppd_evaluation.cpp the only use of the deprecated PPD interface of libcups
// in this module.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace constraints {

namespace {

constexpr std::string_view spaces = " \t\r\n\v\f";

std::span<const ppd_const_t> pairsOf(const ppd_file_t *ppd)
{
    return ppd && ppd->num_consts > 0 ? std::span(ppd->consts, std::size_t(ppd->num_consts))
                                      : std::span<ppd_const_t>();
}

// Collects lines, and determines once for each distinct term which term it becomes in the engine, or that
// lines with it are left out.
class Collector
{
public:
    using Meaning = std::function<std::optional<Term>(const Term &)>;
    explicit Collector(Meaning meaning) : m_meaning(std::move(meaning)) {}

    void add(const Term &term)
    {
        const std::uint32_t raw = m_raw.number(term);
        if (raw == m_numbers.size()) {
            const auto meant = m_meaning(term);
            m_numbers.push_back(meant ? m_meant.number(*meant) : none);
        }
        m_lineIsGood &= m_numbers[raw] != none;
        m_lines.push_back(m_numbers[raw]);
    }
    void endLine()
    {
        if (m_lineIsGood && m_lines.size() > m_lineStart)
            m_lines.push_back(none);
        else
            m_lines.resize(m_lineStart);
        m_lineStart = m_lines.size();
        m_lineIsGood = true;
    }
    void addPairs(const ppd_file_t *ppd)
    {
        m_lines.reserve(pairsOf(ppd).size() * 3);
        for (const ppd_const_t &line : pairsOf(ppd)) {
            add({line.option1, line.choice1});
            add({line.option2, line.choice2});
            endLine();
        }
    }
    Engine engine() const { return Engine(m_meant.terms(), m_lines); }

private:
    Meaning m_meaning;
    TermTable m_raw;
    TermTable m_meant;
    std::vector<std::uint32_t> m_numbers; // index into m_meant of each raw term
    std::vector<std::uint32_t> m_lines;
    std::size_t m_lineStart = 0;
    bool m_lineIsGood = true;
};

std::string_view takeWord(std::string_view *text)
{
    const std::string_view word = text->substr(0, text->find_first_of(spaces));
    text->remove_prefix(word.size());
    text->remove_prefix(std::min(text->find_first_not_of(spaces), text->size()));
    return word.substr(0, PPD_MAX_NAME - 1);
}

// "*Duplex DuplexNoTumble *MediaType Thick"; the choice may be missing.
void addTerms(std::string_view text, Collector *collector)
{
    for (auto star = text.find('*'); star != std::string_view::npos; star = text.find('*')) {
        text.remove_prefix(star + 1);
        const std::string_view option = takeWord(&text);
        const bool hasChoice = !text.empty() && text.front() != '*';
        collector->add({option, hasChoice ? takeWord(&text) : std::string_view()});
    }
    collector->endLine();
}

bool startsWithCustom(std::string_view option)
{
    constexpr std::string_view prefix = "Custom";
    return isSameName(option.substr(0, prefix.size()), prefix);
}

// The term with the PPD's spelling of the names; null if the PPD has no such option or choice.
std::optional<Term> termOfPpd(ppd_file_t *ppd, const Term &term)
{
    const bool isCustom = startsWithCustom(term.option) && isSameName(term.choice, "True");
    const std::string name(isCustom ? term.option.substr(6) : term.option);
    ppd_option_t *option = ppdFindOption(ppd, name.c_str());
    if (!option)
        return std::nullopt;
    if (term.choice.empty())
        return Term{option->keyword, {}};
    const std::string choiceName(isCustom ? "Custom" : term.choice);
    const ppd_choice_t *choice = ppdFindChoice(option, choiceName.c_str());
    if (!choice)
        return std::nullopt;
    if (!isSameName(option->keyword, pageSizeName) && !isSameName(option->keyword, pageRegionName))
        return Term{option->keyword, choice->choice};
    ppd_option_t *pageSize = ppdFindOption(ppd, pageSizeName.data());
    const ppd_choice_t *size = pageSize ? ppdFindChoice(pageSize, choice->choice) : nullptr;
    return Term{pageSize ? pageSize->keyword : pageSizeName, size ? size->choice : choice->choice};
}

} // namespace

bool isSameName(std::string_view first, std::string_view second)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
    return std::ranges::equal(first, second, {}, lower, lower);
}

Engine linesAsWritten(const ppd_file_s *ppd, bool (*isName)(std::string_view))
{
    Collector collector([isName](const Term &term) {
        return isName(term.option) && isName(term.choice) ? std::optional(term) : std::nullopt;
    });
    collector.addPairs(ppd);
    return collector.engine();
}

Engine linesAsUnderstood(ppd_file_s *ppd)
{
    Collector collector([ppd](const Term &term) { return termOfPpd(ppd, term); });
    collector.addPairs(ppd);
    const char *longForm = "cupsUIConstraints";
    const ppd_attr_t *attribute = ppd ? ppdFindAttr(ppd, longForm, nullptr) : nullptr;
    for (; attribute; attribute = ppdFindNextAttr(ppd, longForm, nullptr)) {
        if (attribute->value)
            addTerms(attribute->value, &collector);
    }
    return collector.engine();
}

} // namespace constraints
