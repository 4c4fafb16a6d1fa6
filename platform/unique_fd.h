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

// Owns a file descriptor and closes it. -1 stands for none.
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
    // One of one's own for the same open file; none when there is no such descriptor.
    static UniqueFd duplicate(int fd) { return UniqueFd(::fcntl(fd, F_DUPFD_CLOEXEC, 3)); }

private:
    int m_fd = -1;
};

// Of one document that another program hands over; in bytes.
constexpr off_t longestDocument = off_t{2} * 1024 * 1024 * 1024;

// How long a caller waits for another program's bytes.
struct Patience
{
    std::chrono::milliseconds silence; // at a stretch in which nothing comes
    std::chrono::milliseconds whole;   // however much comes
};

// Waits until there is something to read, or the end; false with errno, ETIMEDOUT when patience is at an end.
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

// Copies all of `source`, from its beginning where it has one to go back to, into a new file of `folder` that
// loses its name at once: it follows no link, no other process can open it, and it goes with its last
// descriptor. Blocks, without `patience` (may be null) as long as the source does. None, with errno, when
// there are more than `limit` bytes (EFBIG), patience is at an end (ETIMEDOUT) or something cannot be read or
// written.
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
    (void)::lseek(source, 0, SEEK_SET); // fails for a pipe, which is at its beginning
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
