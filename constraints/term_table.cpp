// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "constraints/term_table.h"

#include <cstring>

namespace constraints {

namespace {

constexpr std::uint32_t emptySlot = ~0U;
constexpr std::size_t firstSize = 1024;
constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;

// Plain multiplications: Qt's hash of a short string takes ten times as long on some processors.
std::uint64_t mixed(std::uint64_t hash, std::string_view bytes)
{
    for (; bytes.size() > sizeof hash; bytes.remove_prefix(sizeof hash)) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes.data(), sizeof word);
        hash = (hash ^ word) * factor;
        hash ^= hash >> 32;
    }
    std::uint64_t word = bytes.size();
    for (const char byte : bytes)
        word = word << 8 | static_cast<unsigned char>(byte);
    hash = (hash ^ word) * factor;
    return hash ^ hash >> 32;
}

} // namespace

TermTable::TermTable() : m_slots(firstSize, emptySlot) {}

std::uint32_t TermTable::number(const Term &term)
{
    const auto hash = static_cast<std::uint32_t>(mixed(mixed(0, term.option), term.choice));
    std::size_t slot = hash & (m_slots.size() - 1);
    for (; m_slots[slot] != emptySlot; slot = (slot + 1) & (m_slots.size() - 1)) {
        const std::uint32_t known = m_slots[slot];
        if (m_hashes[known] == hash && m_terms[known] == term)
            return known;
    }
    const auto number = static_cast<std::uint32_t>(m_terms.size());
    m_slots[slot] = number;
    m_terms.push_back(term);
    m_hashes.push_back(hash);
    if (m_terms.size() * 2 > m_slots.size())
        grow();
    return number;
}

void TermTable::grow()
{
    m_slots.assign(m_slots.size() * 4, emptySlot);
    for (std::uint32_t number = 0; number < m_terms.size(); ++number) {
        std::size_t slot = m_hashes[number] & (m_slots.size() - 1);
        while (m_slots[slot] != emptySlot)
            slot = (slot + 1) & (m_slots.size() - 1);
        m_slots[slot] = number;
    }
}

} // namespace constraints
