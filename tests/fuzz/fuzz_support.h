// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

// A driver is a program for one kind of input. It defines LLVMFuzzerTestOneInput(), which libFuzzer calls
// with one input after another, and says with requireThat() what holds whatever the input is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

// Aborts where the condition does not hold; libFuzzer keeps the input.
template <typename Condition>
void requireThat(const Condition &condition)
{
    if (!condition)
        std::abort();
}

inline QByteArray bytesOf(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)};
}
