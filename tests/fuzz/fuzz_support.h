// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

// A driver is a program for one kind of input. It defines LLVMFuzzerTestOneInput(), which libFuzzer calls for
// each input, and checks with requireThat() what must hold for every input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

// Aborts if the condition does not hold; libFuzzer then saves the input.
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
