// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

// Absolute paths in the source folder and in the build folder; the relative path begins with a slash. The
// environment variable KELMAR_TEST_BUILD selects another build folder. Only one source has the folders
// compiled in, so that all clones can share the compiler cache.
QString sourcePath(const char *relative);
QString buildPath(const char *relative);
