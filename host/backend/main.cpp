// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// The backend of the queue "KELMAR dialog". Passes each job to the print service of the user who printed it,
// which opens the dialog with it. cupsd starts the backend as root, because the file's mode is 0700. As root
// it opens the job's file and looks up the user. A second process, which becomes that user, communicates with
// the session; the first process waits for it.
//
// Usage: kelmar-dialog JOB USER TITLE COPIES OPTIONS [FILE]. USER is set by the job and is ignored.
// DEVICE_URI may end in ?wait=SECONDS, the time in which the print service must accept the document (10).

#include "host/backend/caller.h"
#include "host/backend/user_bus.h"
#include "platform/descriptor_io.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string_view>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>

namespace {

// Exit codes, which determine what cupsd does with the job. A held job can be released when the reason no
// longer exists; the queue stays open for other users.
enum Ending { Taken = 0, Hold = 3 };

// Exit code of the second process if nothing in the user's session responded; cupsd never sees it.
constexpr int silentCode = 4;

constexpr size_t longestText = 64 * 1024; // bytes of the title or the options
constexpr const char *spoolFolder = "/var/tmp";
// For a document from a filter.
constexpr platform::Patience filterPatience{std::chrono::minutes(1), std::chrono::minutes(10)};
constexpr std::chrono::seconds connecting(3); // to a session bus, which responds within milliseconds
constexpr std::chrono::seconds grace(2);
// Jobs of a user whose session did not respond are held immediately for this time, since each wait blocks the
// queue for all other users.
constexpr std::chrono::seconds silencePenalty(30);

Ending hold(const std::string &reason)
{
    // cupsd shows this message with the queue and the job.
    std::fprintf(stderr, "ERROR: %s\n", reason.c_str());
    return Hold;
}

// The fallback if the text is not a number or out of range.
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
    constexpr unsigned usual = 10;
    const char *uri = std::getenv("DEVICE_URI");
    const std::string_view text = uri ? uri : "";
    constexpr std::string_view key = "?wait=";
    const size_t at = text.find(key);
    return std::chrono::seconds(
        at == std::string_view::npos ? usual : numberIn(text.substr(at + key.size()), 1, 3600, usual));
}

// Remembers that a user's session did not respond, as the modification time of an empty file in the
// scheduler's state folder, which only root can write to. Without such a folder nothing is remembered.
class SilenceRecord
{
public:
    explicit SilenceRecord(uid_t uid)
    {
        const char *folder = std::getenv("CUPS_STATEDIR");
        if (folder && *folder)
            m_path = std::string(folder) + "/kelmar-dialog-silent-" + std::to_string(uid);
    }
    bool isRecent() const
    {
        struct stat facts = {};
        if (m_path.empty() || ::lstat(m_path.c_str(), &facts) != 0)
            return false;
        const time_t age = ::time(nullptr) - facts.st_mtime;
        return age >= 0 && age < silencePenalty.count();
    }
    void set() const
    {
        const platform::UniqueFd file(
            m_path.empty() ? -1 : ::open(m_path.c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (file)
            ::futimens(file.get(), nullptr);
    }
    void clear() const
    {
        if (!m_path.empty())
            ::unlink(m_path.c_str());
    }

private:
    std::string m_path;
};

// Opens the job's document so that its user may read it: the scheduler's own file, never through a link,
// whose owner becomes the user, or a copy of the output of a filter. None with errno.
platform::UniqueFd openJob(const char *path, const backend::Caller &caller)
{
    if (path) {
        platform::UniqueFd file(::open(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        struct stat facts = {};
        if (!file || ::fstat(file.get(), &facts) != 0)
            return {};
        if (!S_ISREG(facts.st_mode) || facts.st_nlink != 1) {
            errno = EINVAL;
            return {};
        }
        if (facts.st_size > platform::longestDocument) {
            errno = EFBIG;
            return {};
        }
        return ::fchown(file.get(), caller.uid, static_cast<gid_t>(-1)) == 0 ? std::move(file)
                                                                             : platform::UniqueFd();
    }
    platform::UniqueFd copy =
        platform::privateCopy(STDIN_FILENO, spoolFolder, platform::longestDocument, &filterPatience);
    return copy && ::fchown(copy.get(), caller.uid, caller.gid) == 0 ? std::move(copy) : platform::UniqueFd();
}

struct JobArguments // from cupsd
{
    const char *title, *copies, *options;
};

// Runs the second process, which is the user's from the beginning. Returns its exit code.
int deliver(const backend::Caller &caller, const platform::UniqueFd &document, const JobArguments &arguments,
            std::chrono::seconds wait, pid_t parent)
{
    if (!backend::become(caller) || ::prctl(PR_SET_PDEATHSIG, SIGKILL) != 0 || ::getppid() != parent)
        return hold("The backend cannot act for the user of the job.");
    const backend::Handover handover{document.get(), std::string(arguments.title).substr(0, longestText),
                                     numberIn(arguments.copies, 1, 9999, 1),
                                     std::string(arguments.options).substr(0, longestText)};
    std::string error;
    switch (backend::handOver(caller.uid, handover, connecting, wait, &error)) {
    case backend::Delivery::Taken:
        return Taken;
    case backend::Delivery::Refused:
        return hold(error);
    case backend::Delivery::Silent:
        break;
    }
    return silentCode;
}

// Waits for the second process. Users may stop the process that runs on their behalf, and any program may
// answer on their bus; neither blocks the queue for others beyond this time.
Ending outcomeOf(pid_t process, std::chrono::seconds longest, const SilenceRecord &silence)
{
    const platform::UniqueFd ended(static_cast<int>(::syscall(SYS_pidfd_open, process, 0)));
    pollfd event = {ended.get(), POLLIN, 0};
    const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(longest).count();
    if (!ended || ::poll(&event, 1, static_cast<int>(time)) <= 0)
        ::kill(process, SIGKILL);
    int status = 0;
    const bool hasEnded = ::waitpid(process, &status, 0) == process && WIFEXITED(status);
    if (hasEnded && WEXITSTATUS(status) == Taken) {
        silence.clear();
        return Taken;
    }
    if (hasEnded && WEXITSTATUS(status) == Hold)
        return Hold; // it has reported the reason
    silence.set();
    return hold("The dialog did not open: the user's desktop session did not answer.");
}

Ending run(const JobArguments &arguments, const char *path)
{
    const std::chrono::seconds wait = patience();
    std::string error;
    const auto caller = backend::findCaller(&error);
    if (!caller)
        return hold(error);
    const SilenceRecord silence(caller->uid);
    if (silence.isRecent())
        return hold(
            "The user's desktop session did not answer the job before this one. Release this job later.");
    const platform::UniqueFd job = openJob(path, *caller);
    if (!job)
        return hold(errno == EFBIG ? std::string("The document is larger than 2 GB.")
                                   : std::string("The document of the job cannot be opened: ") +
                                         std::strerror(errno) + ".");
    const pid_t self = ::getpid();
    const pid_t process = ::fork();
    if (process == 0)
        ::_exit(deliver(*caller, job, arguments, wait, self));
    return process < 0 ? hold("The backend cannot act for the user of the job.")
                       : outcomeOf(process, connecting + wait + grace, silence);
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
    ::close_range(3, ~0U, 0); // file descriptors of the scheduler
    return run({argv[3], argv[4], argv[5]}, argc == 7 ? argv[6] : nullptr);
}
