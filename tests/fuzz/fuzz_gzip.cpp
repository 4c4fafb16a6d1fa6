// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// A file that may be compressed, read in pieces to its end, twice.

#include "host/printing/gzip_file.h"
#include "tests/fuzz/fuzz_support.h"

#include <algorithm>

#include <sys/mman.h>
#include <unistd.h>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr qint64 most = 4 * 1024 * 1024; // highly compressed data could expand without limit
    const int fd = ::memfd_create("input", MFD_CLOEXEC);
    requireThat(fd >= 0 && ::write(fd, data, size) == static_cast<ssize_t>(size));
    ::lseek(fd, 0, SEEK_SET);
    host::GzipFile file(fd);
    requireThat(file.isOpen());
    QByteArray read;
    for (int pass = 0; pass < 2; ++pass) {
        QByteArray now;
        while (now.size() < most) {
            const QByteArray piece = file.read(pass == 0 ? 1000 : 4096);
            if (piece.isEmpty())
                break;
            now += piece;
        }
        requireThat(!file.hasFailed() || !file.errorString().isEmpty());
        const qsizetype both = std::min(now.size(), read.size());
        requireThat(pass == 0 || file.hasFailed() || now.left(both) == read.left(both));
        read = now;
        if (!file.seek(0))
            break;
    }
    return 0;
}
