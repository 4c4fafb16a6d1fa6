// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Writes the benchmarks' large PPD to standard output. Usage: large_ppd_file CONSTRAINTS
#include "bench/large_ppd.h"

int main(int argc, char **argv)
{
    const QByteArray file = largePpdFile(argc > 1 ? QByteArray(argv[1]).toInt() : largePpdConstraints);
    return std::fwrite(file.constData(), 1, size_t(file.size()), stdout) == size_t(file.size()) ? 0 : 1;
}
