// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Page ranges as typed by a user.

#include "host/printing/page_ranges.h"
#include "tests/fuzz/fuzz_support.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QString error;
    const QString text = QString::fromUtf8(bytesOf(data, size));
    const auto ranges = host::normalizedPageRanges(text, &error);
    requireThat(ranges || !error.isEmpty());
    if (ranges)
        requireThat(host::normalizedPageRanges(*ranges, &error) == ranges);
    return 0;
}
