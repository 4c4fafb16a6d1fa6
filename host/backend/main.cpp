// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The backend of the queue "KELMAR dialog": hands each job to the print service of the user who printed it,
// where the dialog opens with it. Started by cupsd, as root, because the file's mode is 0700; as root it
// opens the job's file and finds the user. All that has to do with the user's side is done by a second
// process, which has become that user; the first waits for it.
//
// Usage: kelmar-dialog JOB USER TITLE COPIES OPTIONS [FILE]. USER is what the job says and is not looked at.
// DEVICE_URI may end in ?wait=SECONDS, how long the dialog may take to open (60).

#include "host/backend/caller.h"
#include "host/backend/user_bus.h"
#include "platform/unique_fd.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace {

// What cupsd does with the job next. A job that is held can be released when its reason is gone; the queue
// stays open for everybody else.
enum Ending { Taken = 0, Hold = 3 };

constexpr size_t longestText = 64 * 1024; // bytes of a title or the options
constexpr const char *spoolFolder = "/var/tmp";
constexpr std::chrono::seconds longestCopy(600); // of a document into that
constexpr std::chrono::seconds grace(5);         // for a bus that keeps silent itself

Ending hold(const std::string &reason)
{
    // cupsd shows this with the queue and the job.
    std::fprintf(stderr, "ERROR: %s\n", reason.c_str());
    return Hold;
}

// Where there is no number, or one out of range, the fallback.
unsigned numberIn(std::string_view text, unsigned least, unsigned most, unsigned fallback)
{
    unsigned number = 0;
    const auto [rest, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    return problem == std::errc() && rest == text.data() + text.size() && number >= least && number <= most
               ? number
               : fallback;
}

std::chrono::seconds patience()
{
    const char *uri = std::getenv("DEVICE_URI");
    const std::string_view text = uri ? uri : "";
    constexpr std::string_view key = "?wait=";
    const size_t at = text.find(key);
    return std::chrono::seconds(
        at == std::string_view::npos ? 60 : numberIn(text.substr(at + key.size()), 1, 3600, 60));
}

// The job's file, which only root may open; never what a link leads to.
platform::UniqueFd openJob(const char *path)
{
    if (!path)
        return platform::UniqueFd::duplicate(STDIN_FILENO);
    platform::UniqueFd file(::open(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat facts = {};
    const bool isFile = file && ::fstat(file.get(), &facts) == 0 && S_ISREG(facts.st_mode);
    return isFile ? std::move(file) : platform::UniqueFd();
}

struct Words // of the job, as cupsd hands them over
{
    const char *title, *copies, *options;
};

// The second process: the user's from its first step.
Ending deliver(const backend::Caller &caller, const platform::UniqueFd &job, const Words &words,
               std::chrono::seconds wait, pid_t parent)
{
    if (!backend::become(caller) || ::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0 || ::getppid() != parent)
        return hold("The backend cannot act for the user of the job.");
    const platform::UniqueFd document =
        platform::privateCopy(job.get(), spoolFolder, platform::longestDocument);
    if (!document)
        return hold(errno == EFBIG
                        ? std::string("The document is larger than 2 GB.")
                        : std::string("The document cannot be copied: ") + std::strerror(errno) + ".");
    const backend::Handover handover{document.get(), std::string(words.title).substr(0, longestText),
                                     numberIn(words.copies, 1, 9999, 1),
                                     std::string(words.options).substr(0, longestText)};
    std::string error;
    ::alarm(static_cast<unsigned>((wait + grace).count()));
    return backend::handOver(caller.uid, handover, wait, &error) ? Taken : hold(error);
}

// Users may stop the process that acts for them, and what answers on their bus need not be one: neither keeps
// the queue from everybody else for good.
Ending outcomeOf(pid_t process, std::chrono::seconds longest)
{
    const platform::UniqueFd ended(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    pollfd event = {ended.get(), POLLIN, 0};
    const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(longest).count();
    if (!ended || ::poll(&event, 1, static_cast<int>(time)) <= 0)
        ::kill(process, SIGKILL);
    int status = 0;
    if (::waitpid(process, &status, 0) != process || !WIFEXITED(status))
        return hold("The dialog did not open.");
    return WEXITSTATUS(status) == Taken ? Taken : Hold; // it has said why
}

Ending run(const Words &words, const char *path)
{
    const std::chrono::seconds wait = patience();
    std::string error;
    const auto caller = backend::findCaller(&error);
    if (!caller)
        return hold(error);
    const platform::UniqueFd job = openJob(path);
    if (!job)
        return hold("The document of the job cannot be opened.");
    const pid_t self = ::getpid();
    const pid_t process = ::fork();
    if (process == 0)
        ::_exit(deliver(*caller, job, words, wait, self));
    return process < 0 ? hold("The backend cannot act for the user of the job.")
                       : outcomeOf(process, longestCopy + wait + grace);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 1) {
        std::puts("direct kelmar-dialog \"Unknown\" \"KELMAR dialog\"");
        return Taken;
    }
    if (argc < 6 || argc > 7) {
        std::fputs("Usage: kelmar-dialog job user title copies options [file]\n", stderr);
        return 1;
    }
    std::signal(SIGPIPE, SIG_IGN);
    ::close_range(3, ~0U, 0); // channels of the scheduler's
    return run({argv[3], argv[4], argv[5]}, argc == 7 ? argv[6] : nullptr);
}
