// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/confined_process.h"

#include "host/preview/confinement.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>

#include <linux/close_range.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#ifndef P_PIDFD
#define P_PIDFD 3
#endif

namespace host {

namespace {

// What the new process reports through a pipe before the program is executed, or if that fails.
struct Report
{
    unsigned missing = 0; // missing parts of the confinement
    int error = 0;        // errno of exec
};

// All data for the new process, in the form that system calls take.
struct Launch
{
    const Confinement &confinement;
    const char *program;
    char *const *arguments;
    char *const *environment;
    int input, output, errors, report;
    const std::vector<int> &others;
    const ProcessLimits &limits;
};

void limit(__rlimit_resource resource, qint64 most) noexcept
{
    const rlimit64 both{static_cast<rlim64_t>(most), static_cast<rlim64_t>(most)};
    ::syscall(SYS_prlimit64, 0, resource, &both, nullptr);
}

// Sets up the standard streams. The program inherits only these and the other descriptors of the call.
void setUpDescriptors(const Launch &launch) noexcept
{
    constexpr unsigned mostFiles = 4096; // for kernels that cannot close ranges
    ::syscall(SYS_dup3, launch.input, STDIN_FILENO, 0);
    ::syscall(SYS_dup3, launch.output, STDOUT_FILENO, 0);
    ::syscall(SYS_dup3, launch.errors, STDERR_FILENO, 0);
    if (::syscall(SYS_close_range, 3U, ~0U, CLOSE_RANGE_CLOEXEC) != 0) {
        for (unsigned file = 3; file < mostFiles; ++file)
            ::syscall(SYS_fcntl, file, F_SETFD, FD_CLOEXEC);
    }
    for (const int other : launch.others)
        ::syscall(SYS_fcntl, other, F_SETFD, 0);
}

// Restores the default action of signals that this program handles or ignores.
void resetSignals() noexcept
{
    constexpr unsigned long defaults[16] = {}; // larger than the kernel's struct sigaction and signal set
    for (int signal = 1; signal < _NSIG; ++signal)
        ::syscall(SYS_rt_sigaction, signal, defaults, nullptr, _NSIG / 8);
    ::syscall(SYS_rt_sigprocmask, SIG_SETMASK, defaults, nullptr, _NSIG / 8);
}

// The function of the new process: confines it and executes the program. The process shares the memory of
// this program, so the function makes system calls only, and never returns.
__attribute__((no_sanitize("address", "thread", "undefined"))) int executeProgram(void *argument) noexcept
{
    const Launch &launch = *static_cast<const Launch *>(argument);
    ::syscall(SYS_setpgid, 0, 0); // so that its child processes are killed with it
    launch.confinement.enterNamespaces();
    setUpDescriptors(launch);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_AS, launch.limits.memory);
    limit(RLIMIT_FSIZE, launch.limits.output);
    limit(RLIMIT_CPU, std::chrono::ceil<std::chrono::seconds>(launch.limits.time).count());
    Report report;
    report.missing = launch.confinement.giveUpRights();
    resetSignals();
    if (report.missing != 0)
        ::syscall(SYS_write, launch.report, &report, sizeof report);
    ::syscall(SYS_execve, launch.program, launch.arguments, launch.environment);
    report.error = errno;
    ::syscall(SYS_write, launch.report, &report, sizeof report);
    while (true)
        ::syscall(SYS_exit_group, 127);
}

// A null-terminated array for execve(); valid during the lifetime of `words`.
std::vector<char *> pointersTo(const QList<QByteArray> &words)
{
    std::vector<char *> pointers;
    for (const QByteArray &word : words)
        pointers.push_back(const_cast<char *>(word.constData()));
    pointers.push_back(nullptr);
    return pointers;
}

// The minimal environment, extended by that of the call. Of the user's environment it contains only the cache
// folder and the time zone, which some programs write into files.
QList<QByteArray> environmentOf(const ConfinedProcess::Call &call, const QByteArray &folder)
{
    QList<QByteArray> environment = {"PATH=/usr/bin:/bin", "LC_ALL=C.UTF-8", "TMPDIR=" + folder,
                                     "XDG_CACHE_HOME=" + Confinement::cacheFolder()};
    if (qEnvironmentVariableIsSet("TZ"))
        environment.append("TZ=" + qgetenv("TZ"));
    return environment + call.environment;
}

// Blocks signals while a process is created: a handler of this program must not run in the new process.
class BlockedSignals
{
public:
    BlockedSignals()
    {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &m_before);
    }
    ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

private:
    sigset_t m_before;
};

} // namespace

ConfinedProcess::~ConfinedProcess()
{
    delete m_notifier; // before the descriptor that it watches is closed
    if (!isRunning())
        return;
    constexpr int killTimeout = 100; // milliseconds; a killed process usually ends sooner
    kill();
    pollfd end = {m_handle.get(), POLLIN, 0};
    if (::poll(&end, 1, killTimeout) > 0)
        ::waitid(static_cast<idtype_t>(P_PIDFD), static_cast<id_t>(m_handle.get()), nullptr,
                 WEXITED | __WALL);
}

bool ConfinedProcess::start(const Call &call, const ProcessLimits &limits)
{
    m_folder.emplace();
    int ends[2] = {-1, -1};
    if (m_folder->isNull() || pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return false;
    m_report = platform::UniqueFd(ends[0]);
    const platform::UniqueFd report(ends[1]), errors(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    Confinement confinement(call.program, m_folder->path(), call.input, 2 * limits.output);
    const QList<QByteArray> words = QList<QByteArray>{call.program} + call.arguments;
    const QList<QByteArray> environment = environmentOf(call, m_folder->path());
    const std::vector<char *> arguments = pointersTo(words), variables = pointersTo(environment);
    Launch launch{confinement,      call.program.constData(),
                  arguments.data(), variables.data(),
                  call.input,       call.output,
                  errors.get(),     report.get(),
                  call.others,      limits};
    {
        const BlockedSignals blocked;
        m_process = confinement.start(executeProgram, &launch, &m_handle);
    }
    if (m_process < 0)
        return false;
    m_notifier = new QSocketNotifier(m_handle.get(), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &ConfinedProcess::reap);
    return true;
}

void ConfinedProcess::kill()
{
    if (!isRunning())
        return;
    ::syscall(SYS_pidfd_send_signal, m_handle.get(), SIGKILL, nullptr, 0);
    ::kill(-m_process, SIGKILL);
}

void ConfinedProcess::reap()
{
    m_notifier->setEnabled(false);
    // Kills the remaining child processes; with a PID namespace there are none. The process ID is not reused
    // before waitid() has been called.
    ::kill(-m_process, SIGKILL);
    siginfo_t facts = {};
    const bool isKnown = ::waitid(static_cast<idtype_t>(P_PIDFD), static_cast<id_t>(m_handle.get()), &facts,
                                  WEXITED | __WALL) == 0;
    Report report;
    while (::read(m_report.get(), &report, sizeof report) == sizeof report)
        Confinement::logMissing(report.missing);
    m_handle.reset();
    m_folder.reset();
    if (report.error != 0)
        Q_EMIT ended(End::NotStarted, report.error);
    else if (!isKnown || facts.si_code != CLD_EXITED)
        Q_EMIT ended(End::Crashed, 0);
    else
        Q_EMIT ended(facts.si_status == 0 ? End::Done : End::Failed, 0);
}

} // namespace host
