// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace platform {

// Owns a file descriptor and closes it. -1 means none.
class UniqueFd
{
public:
    UniqueFd() = default;
    explicit UniqueFd(int fd) : m_fd(fd) {}
    ~UniqueFd() { reset(); }
    UniqueFd(UniqueFd &&other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    UniqueFd &operator=(UniqueFd &&other) noexcept
    {
        if (this != &other) {
            reset();
            m_fd = std::exchange(other.m_fd, -1);
        }
        return *this;
    }

    int get() const { return m_fd; }
    explicit operator bool() const { return m_fd >= 0; }
    void reset()
    {
        if (m_fd >= 0)
            ::close(std::exchange(m_fd, -1));
    }
    // Duplicates a descriptor; none if it is invalid.
    static UniqueFd duplicate(int fd) { return UniqueFd(::fcntl(fd, F_DUPFD_CLOEXEC, 3)); }

private:
    int m_fd = -1;
};

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
// descriptor. Blocks as long as the source does if `patience` is null. None with errno if there are more than
// `limit` bytes (EFBIG), patience is exceeded (ETIMEDOUT), or reading or writing fails.
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
        const ssize_t got = ::read(source, block, sizeof block);
        if (got == 0)
            break;
        if (got < 0 && errno == EINTR)
            continue;
        total += got;
        if (got > 0 && total > limit)
            errno = EFBIG;
        if (got < 0 || total > limit)
            return {};
        for (ssize_t done = 0; done < got;) {
            const ssize_t put = ::write(copy.get(), block + done, static_cast<size_t>(got - done));
            if (put < 0 && errno != EINTR)
                return {};
            done += put > 0 ? put : 0;
        }
    }
    return ::lseek(copy.get(), 0, SEEK_SET) == 0 ? std::move(copy) : UniqueFd();
}

} // namespace platform
