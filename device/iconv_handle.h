// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <iconv.h>

#include <memory>
#include <type_traits>

struct IconvCloser
{
    void operator()(iconv_t converter) const { ::iconv_close(converter); }
};
using IconvHandle = std::unique_ptr<std::remove_pointer_t<iconv_t>, IconvCloser>;

// Null if the system does not support the conversion.
inline IconvHandle openIconv(const char *to, const char *from)
{
    const iconv_t converter = ::iconv_open(to, from);
    return IconvHandle(converter == reinterpret_cast<iconv_t>(-1) ? nullptr : converter);
}
