// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <poll.h>
#include <string>
#include <string_view>
#include <sys/stat.h>

// Reading and writing whole contents through file descriptors. Signals do not interrupt these functions.
namespace platform {

// Reads up to `size` bytes as read() does: 0 at the end, -1 with errno.
inline ssize_t readSome(int fd, char *block, size_t size)
{
    ssize_t got = 0;
    do
        got = ::read(fd, block, size);
    while (got < 0 && errno == EINTR);
    return got;
}

// Writes all bytes; false with errno when only a part or nothing could be written.
inline bool writeAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t put = ::write(fd, bytes.data(), bytes.size());
        if (put < 0 && errno != EINTR)
            return false;
        bytes.remove_prefix(static_cast<size_t>(std::max<ssize_t>(put, 0)));
    }
    return true;
}

// Maximum size in bytes of a document that another program passes.
constexpr off_t longestDocument = off_t{2} * 1024 * 1024 * 1024;

// How long a caller waits for data from another program.
struct Patience
{
    std::chrono::milliseconds silence; // without any data
    std::chrono::milliseconds whole;   // in total
};

// Waits for data or end of file. False with errno; ETIMEDOUT if patience is exceeded.
inline bool waitForInput(int source, const Patience *patience, std::chrono::steady_clock::time_point begun)
{
    using std::chrono::milliseconds;
    while (true) {
        milliseconds time(-1);
        if (patience) {
            const auto gone = std::chrono::steady_clock::now() - begun;
            const auto left = patience->whole - std::chrono::duration_cast<milliseconds>(gone);
            time = std::max(milliseconds(0), std::min(patience->silence, left));
        }
        pollfd input = {source, POLLIN, 0};
        const int ready = time.count() == 0 ? 0 : ::poll(&input, 1, static_cast<int>(time.count()));
        if (ready > 0)
            return true;
        if (ready == 0)
            errno = ETIMEDOUT;
        if (errno != EINTR)
            return false;
    }
}

// Copies all of `source`, from the beginning if it is seekable, into a new file in `folder` that is unlinked
// immediately: no link is followed, no other process can open the file, and it is freed with its last
// descriptor. Blocks as long as the source does if `patience` is null. Returns no descriptor, with errno, if
// there are more than `limit` bytes (EFBIG), patience is exceeded (ETIMEDOUT), or reading or writing fails.
inline UniqueFd privateCopy(int source, const std::string &folder, off_t limit,
                            const Patience *patience = nullptr)
{
    const auto begun = std::chrono::steady_clock::now();
    struct stat facts = {};
    if (::fstat(source, &facts) != 0)
        return {};
    if (S_ISREG(facts.st_mode) && facts.st_size > limit) {
        errno = EFBIG;
        return {};
    }
    std::string name = folder + "/kelmar-print-XXXXXX";
    UniqueFd copy(::mkostemp(name.data(), O_CLOEXEC));
    if (!copy || ::unlink(name.c_str()) != 0)
        return {};
    (void)::lseek(source, 0, SEEK_SET); // fails for a pipe, which needs no rewinding
    char block[64 * 1024];
    off_t total = 0;
    while (true) {
        if (!waitForInput(source, patience, begun))
            return {};
        const ssize_t got = readSome(source, block, sizeof block);
        if (got == 0)
            break;
        total += got;
        if (got > 0 && total > limit)
            errno = EFBIG;
        if (got < 0 || total > limit || !writeAll(copy.get(), {block, static_cast<size_t>(got)}))
            return {};
    }
    return ::lseek(copy.get(), 0, SEEK_SET) == 0 ? std::move(copy) : UniqueFd();
}

} // namespace platform
