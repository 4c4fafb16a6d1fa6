// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "tests/support/paths.h"

QString sourcePath(const char *relative)
{
    return QStringLiteral(KELMAR_SOURCE_DIR) + QString::fromUtf8(relative);
}

QString buildPath(const char *relative)
{
    return qEnvironmentVariable("KELMAR_TEST_BUILD", QStringLiteral(KELMAR_BINARY_DIR)) +
           QString::fromUtf8(relative);
}
