// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/confinement.h"

#include "host/preview/system_call_filter.h"
#include "platform/logging.h"

#include <QFile>
#include <QStandardPaths>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include <linux/capability.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>

// bubblewrap is not used: it depends on namespaces, so it fails completely where they are not available, as
// in a chroot or a container, while landlock and seccomp also work there. It supports no landlock, generates
// no system call filter, and is an additional program to install, start and end. Its cost is similar:
// bench/confinement_bench measures both.

namespace host {

namespace {

// Attributes of landlock that are newer than the headers of the oldest supported system.
struct RulesetAttributes
{
    quint64 files;
    quint64 network; // since version 4
    quint64 scopes;  // since version 6
};
constexpr quint64 refer = 1 << 13, truncateFile = 1 << 14, ioctlDevice = 1 << 15; // since versions 2, 3 and 5
constexpr quint64 allTcp = 3, allScopes = 3;

constexpr quint64 readFile = LANDLOCK_ACCESS_FS_READ_FILE;
constexpr quint64 readAll = readFile | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr quint64 execute = LANDLOCK_ACCESS_FS_EXECUTE;
constexpr quint64 writeFile = LANDLOCK_ACCESS_FS_WRITE_FILE;
constexpr quint64 keepFiles =
    readAll | writeFile | truncateFile | LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_REMOVE_FILE;
// Access rights that apply to non-folders.
constexpr quint64 ofFiles = readFile | writeFile | execute | truncateFile | ioctlDevice;

// Programs, libraries, fonts and files of the print system. None of them belongs to a user or is secret.
struct Place
{
    const char *path;
    quint64 access;
};
constexpr Place places[] = {
    {"/usr", readAll | execute},   {"/lib", readAll | execute},         {"/lib32", readAll | execute},
    {"/lib64", readAll | execute}, {"/bin", readAll | execute},         {"/etc/ld.so.cache", readFile},
    {"/etc/ld.so.conf", readFile}, {"/etc/ld.so.conf.d", readAll},      {"/etc/localtime", readFile},
    {"/etc/fonts", readAll},       {"/etc/ghostscript", readAll},       {"/etc/papersize", readFile},
    {"/etc/paperspecs", readFile}, {"/var/cache/fontconfig", readAll},  {"/var/lib/ghostscript", readAll},
    {"/var/lib/fonts", readAll},   {"/dev/null", readFile | writeFile}, {"/dev/zero", readFile},
    {"/dev/urandom", readFile},
};

// Sets of namespaces, in order of preference. Those without a user namespace are for root if it is not
// available, as in a chroot.
constexpr quint64 withoutUsers = CLONE_NEWPID | CLONE_NEWNET | CLONE_NEWIPC;
constexpr std::array<quint64, 4> namespaceSets = {CLONE_NEWUSER | CLONE_NEWNS | withoutUsers,
                                                  CLONE_NEWUSER | CLONE_NEWNS | CLONE_NEWNET | CLONE_NEWIPC,
                                                  withoutUsers, 0};
std::atomic<size_t> firstUsableSet = 0;

int landlockVersion()
{
    static const long version =
        ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    return static_cast<int>(version);
}

quint64 filesHandledBy(int version)
{
    quint64 access = refer - 1; // all rights of version 1
    access |= version >= 2 ? refer : 0;
    access |= version >= 3 ? truncateFile : 0;
    access |= version >= 5 ? ioctlDevice : 0;
    return access;
}

bool addRule(int rules, int place, quint64 access) noexcept
{
    const landlock_path_beneath_attr rule = {access, place};
    return ::syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
}

bool writeTo(const char *path, QByteArrayView text) noexcept
{
    const long file = ::syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool isDone = ::syscall(SYS_write, file, text.data(), text.size()) == text.size();
    ::syscall(SYS_close, file);
    return isDone;
}

} // namespace

Confinement::Confinement(const QByteArray &program, const QByteArray &folder, int document, qint64 size)
    : m_folder(folder), m_folderOptions("mode=0700,nr_inodes=1000,size=" + QByteArray::number(size)),
      m_filter(&systemCallFilter()),
      // A user without privileges in the namespace, whatever the user outside.
      m_userMap("65534 " + QByteArray::number(geteuid()) + " 1"),
      m_groupMap("65534 " + QByteArray::number(getegid()) + " 1")
{
    const int version = landlockVersion();
    if (version < 1)
        return;
    m_handledAccess = filesHandledBy(version);
    const RulesetAttributes attributes = {m_handledAccess, version >= 4 ? allTcp : 0,
                                          version >= 6 ? allScopes : 0};
    const size_t known = version >= 6 ? sizeof attributes : version >= 4 ? 16 : 8;
    m_rules =
        platform::UniqueFd(static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attributes, known, 0)));
    for (const Place &place : places)
        allow(place.path, place.access);
    allow(program.constData(), readFile | execute);
    allow((cacheFolder() + "/fontconfig").constData(), readAll);
    (void)addRule(m_rules.get(), document, readFile); // fails for a file in memory, which needs no rule
}

QByteArray Confinement::cacheFolder()
{
    return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation));
}

// Missing folders need no rule.
void Confinement::allow(const char *path, quint64 access) const
{
    const platform::UniqueFd place(::open(path, O_PATH | O_CLOEXEC));
    struct stat facts = {};
    if (!m_rules || !place || fstat(place.get(), &facts) != 0)
        return;
    if (!S_ISDIR(facts.st_mode))
        access &= ofFiles;
    (void)addRule(m_rules.get(), place.get(), access & m_handledAccess);
}

pid_t Confinement::start(int (*run)(void *), void *argument, platform::UniqueFd *handle)
{
    constexpr size_t stackSize = 64 * 1024; // bytes; the new process calls few functions besides system calls
    std::vector<std::byte> stack(stackSize);
    for (size_t set = firstUsableSet; set < namespaceSets.size(); ++set) {
        int descriptor = -1;
        // Its end is reported through the descriptor instead of a signal.
        const auto flags = static_cast<int>(namespaceSets[set] | CLONE_PIDFD | CLONE_VM | CLONE_VFORK);
        m_hasUsers = (namespaceSets[set] & CLONE_NEWUSER) != 0;
        const pid_t process = ::clone(run, stack.data() + stackSize, flags, argument, &descriptor);
        if (process > 0) {
            firstUsableSet = set;
            *handle = platform::UniqueFd(descriptor);
            if ((namespaceSets[set] & CLONE_NEWPID) == 0)
                logMissing(Namespaces);
            return process;
        }
        if (errno == EAGAIN || errno == ENOMEM)
            break;
    }
    return -1;
}

void Confinement::enterNamespaces() const noexcept
{
    if (!m_hasUsers)
        return;
    const bool isMapped = writeTo("/proc/self/setgroups", QByteArrayView("deny")) &&
                          writeTo("/proc/self/gid_map", m_groupMap) &&
                          writeTo("/proc/self/uid_map", m_userMap);
    // The file system in the folder is freed when the process ends, even if this program is killed. The mount
    // of /proc hides the other processes, which matters if the kernel has no landlock.
    constexpr rlimit64 fewProcesses = {64, 64}; // counted in this namespace
    ::syscall(SYS_prlimit64, 0, RLIMIT_NPROC, &fewProcesses, nullptr);
    constexpr unsigned long flags = MS_NOSUID | MS_NODEV | MS_NOEXEC;
    if (isMapped)
        ::syscall(SYS_mount, "pages", m_folder.constData(), "tmpfs", flags, m_folderOptions.constData());
    ::syscall(SYS_mount, "proc", "/proc", "proc", flags, nullptr);
}

unsigned Confinement::giveUpRights() const noexcept
{
    unsigned missing = 0;
    __user_cap_header_struct header = {_LINUX_CAPABILITY_VERSION_3, 0};
    const __user_cap_data_struct none[_LINUX_CAPABILITY_U32S_3] = {};
    ::syscall(SYS_capset, &header, none);
    if (::syscall(SYS_prctl, PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        missing |= Privileges;
    const long folder = ::syscall(SYS_openat, AT_FDCWD, m_folder.constData(), O_PATH | O_CLOEXEC);
    const bool areFilesKept = m_rules && folder >= 0 &&
                              addRule(m_rules.get(), static_cast<int>(folder), keepFiles & m_handledAccess) &&
                              ::syscall(SYS_landlock_restrict_self, m_rules.get(), 0) == 0;
    if (!areFilesKept)
        missing |= Files;
    ::syscall(SYS_prctl, PR_SET_PDEATHSIG, SIGKILL, 0, 0, 0);
    const sock_fprog program = {static_cast<unsigned short>(m_filter->size()),
                                const_cast<sock_filter *>(m_filter->data())};
    if (m_filter->empty() || ::syscall(SYS_seccomp, SECCOMP_SET_MODE_FILTER, 0, &program) != 0)
        missing |= SystemCalls;
    return missing;
}

void Confinement::logMissing(unsigned parts)
{
    static std::atomic<unsigned> logged = 0;
    const unsigned unlogged = parts & ~logged.fetch_or(parts);
    const auto log = [unlogged](Part part, const char *what) {
        if (unlogged & part)
            qCWarning(lcHost, "programs that read documents run without %s: the kernel does not allow it",
                      what);
    };
    log(Files, "landlock, which keeps them from the user's files");
    log(SystemCalls, "seccomp, which keeps them from sockets and other processes");
    log(Namespaces, "namespaces, which end all processes that they start");
    log(Privileges, "NO_NEW_PRIVS");
}

} // namespace host
