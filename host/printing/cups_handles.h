// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cups/cups.h>

#include <memory>

// RAII wrappers of libcups handles.
namespace host {

struct IppDeleter
{
    void operator()(ipp_t *message) const { ippDelete(message); }
};
using IppPointer = std::unique_ptr<ipp_t, IppDeleter>;

struct HttpDeleter
{
    void operator()(http_t *connection) const { httpClose(connection); }
};
using HttpPointer = std::unique_ptr<http_t, HttpDeleter>;

struct DestinationDeleter
{
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
using CupsDestinationPointer = std::unique_ptr<cups_dest_t, DestinationDeleter>;

struct CupsFileCloser
{
    void operator()(cups_file_t *file) const { cupsFileClose(file); }
};
using CupsFilePointer = std::unique_ptr<cups_file_t, CupsFileCloser>;

// A list of options in libcups's representation: a count and a growing array.
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
    // Adds the options of a text such as "name=value other='two words'"; surrounding braces are removed.
    void parse(const char *text) { m_count = cupsParseOptions(text, m_count, &m_options); }
    // Null if the list has no such option.
    const char *value(const char *name) const { return cupsGetOption(name, m_count, m_options); }
    int count() const { return m_count; }
    cups_option_t *options() const { return m_options; }

private:
    cups_option_t *m_options = nullptr;
    int m_count = 0; // after the array, which parsing fills first
};

} // namespace host
