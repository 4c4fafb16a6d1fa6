// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace constraints {

// A choice of an option, by name. An empty choice is a name like any other.
struct Term
{
    std::string_view option;
    std::string_view choice;
    auto operator<=>(const Term &) const = default;
};

// Numbers the terms of a PPD's constraint lines while they are read: 0, 1, 2... in the order of their first
// occurrence. Names are compared byte by byte. The bytes are borrowed and outlive the table.
class TermTable
{
public:
    TermTable();
    std::uint32_t number(const Term &term);
    const std::vector<Term> &terms() const { return m_terms; }

private:
    void grow();

    std::vector<Term> m_terms;
    std::vector<std::uint32_t> m_hashes; // per term
    std::vector<std::uint32_t> m_slots;  // numbers, open addressing; a power of two
};

} // namespace constraints
