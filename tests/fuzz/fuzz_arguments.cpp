// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The command line, one word per line.

#include "host/batch/arguments.h"
#include "tests/fuzz/fuzz_support.h"

#include <vector>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QStringList words{QStringLiteral("kelmar-print")};
    std::vector<QByteArray> bytes{QByteArrayLiteral("kelmar-print")};
    for (const QByteArray &line : bytesOf(data, size).replace('\0', '\n').split('\n')) {
        bytes.push_back(line);
        words.append(QString::fromUtf8(line));
    }
    std::vector<const char *> argv;
    for (const QByteArray &word : bytes)
        argv.push_back(word.constData());
    host::runsWithoutWindow(static_cast<int>(argv.size()), argv.data());

    QString error;
    const auto arguments = host::parseArguments(words, &error);
    requireThat(arguments || !error.isEmpty());
    if (arguments) {
        arguments->takesValueFromInput();
        arguments->needsWindow();
    }
    return 0;
}
