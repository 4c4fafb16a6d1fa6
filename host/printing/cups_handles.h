// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cups/cups.h>

#include <memory>

// libcups handles that free themselves.
namespace host {

struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using IppPointer = std::unique_ptr<ipp_t, IppDeleter>;

struct DestinationDeleter
{
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
using CupsDestinationPointer = std::unique_ptr<cups_dest_t, DestinationDeleter>;

// A list of options as libcups passes it around: a count and an array that grows.
class CupsOptionList
{
public:
    CupsOptionList() = default;
    explicit CupsOptionList(const char *text) : m_count(cupsParseOptions(text, 0, &m_options)) {}
    ~CupsOptionList() { cupsFreeOptions(m_count, m_options); }
    CupsOptionList(const CupsOptionList &) = delete;
    CupsOptionList &operator=(const CupsOptionList &) = delete;

    void add(const char *name, const char *value)
    {
        m_count = cupsAddOption(name, value, m_count, &m_options);
    }
    int count() const { return m_count; }
    cups_option_t *options() const { return m_options; }

private:
    cups_option_t *m_options = nullptr;
    int m_count = 0; // after the array, which parsing fills first
};

} // namespace host
