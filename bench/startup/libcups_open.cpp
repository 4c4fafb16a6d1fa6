// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Measures libcups alone: downloads the PPD of a queue, opens it, and marks its defaults. Reports like
// FirstPaint. Usage: libcups_open QUEUE
#include "bench/startup/first_paint.h"

#include <cups/cups.h>
#include <cups/ppd.h>

// The PPD interface of libcups is deprecated, but has no replacement.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

int main(int argc, char **argv)
{
    const char *path = argc > 1 ? cupsGetPPD(argv[1]) : nullptr;
    ppd_file_t *ppd = path ? ppdOpenFile(path) : nullptr;
    if (!ppd) {
        std::fputs("the PPD cannot be opened\n", stderr);
        return 1;
    }
    std::remove(path);
    ppdMarkDefaults(ppd);
    FirstPaint::report();
}
