// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/preview/system_call_filter.h"

#include "platform/unique_fd.h"

#include <cerrno>
#include <memory>

#include <sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>

namespace host {

namespace {

struct ReleaseFilter
{
    void operator()(scmp_filter_ctx filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, ReleaseFilter>;

constexpr const char *refused[] = {
    // Communication with other programs: sockets, System V and POSIX queues
    "socket", "socketpair", "socketcall", "connect", "bind", "listen", "accept", "accept4", "sendto",
    "sendmsg", "sendmmsg", "recvfrom", "recvmsg", "recvmmsg", "ipc", "shmget", "shmat", "msgget", "semget",
    "mq_open",
    // Other processes
    "kill", "tkill", "tgkill", "rt_sigqueueinfo", "rt_tgsigqueueinfo", "pidfd_open", "pidfd_getfd",
    "pidfd_send_signal", "ptrace", "process_vm_readv", "process_vm_writev", "process_madvise",
    "process_mrelease", "kcmp", "migrate_pages", "move_pages", "setpriority", "ioprio_set", "sched_setparam",
    "sched_setscheduler", "sched_setattr", "sched_setaffinity",
    // Changes to the process tree, which is killed as a whole
    "setsid", "setpgid", "vhangup",
    // Not covered by landlock: attributes of files, and files that older kernels do not protect
    "chmod", "fchmod", "fchmodat", "chown", "chown32", "fchown", "fchown32", "lchown", "lchown32", "fchownat",
    "setxattr", "lsetxattr", "fsetxattr", "removexattr", "lremovexattr", "fremovexattr", "utime", "utimes",
    "futimesat", "utimensat", "utimensat_time64", "truncate", "truncate64", "mkdir", "mkdirat", "mknod",
    "mknodat", "inotify_add_watch", "fanotify_init", "fanotify_mark", "name_to_handle_at",
    "open_by_handle_at",
    // Namespaces and mounts
    "unshare", "setns", "chroot", "pivot_root", "mount", "umount", "umount2", "open_tree", "move_mount",
    "fsopen", "fsconfig", "fsmount", "fspick", "mount_setattr",
    // Kernel interfaces with a large attack surface, or for system administration
    "bpf", "perf_event_open", "userfaultfd", "io_uring_setup", "io_uring_enter", "io_uring_register",
    "add_key", "request_key", "keyctl", "personality", "modify_ldt", "vm86", "vm86old", "iopl", "ioperm",
    "kexec_load", "kexec_file_load", "init_module", "finit_module", "delete_module", "reboot", "swapon",
    "swapoff", "acct", "quotactl", "quotactl_fd", "syslog", "settimeofday", "clock_settime",
    "clock_settime64", "clock_adjtime", "adjtimex", "sethostname", "setdomainname", "uselib",
    "lookup_dcookie", "nfsservctl"};

// The same kinds of calls, but newer than some versions of libseccomp. Numbers from 424 on are the same on
// all architectures.
constexpr int refusedNumbers[] = {452 /* fchmodat2 */, 463 /* setxattrat */, 466 /* removexattrat */,
                                  467 /* open_tree_attr */, 469 /* file_setattr */};

constexpr unsigned long newNamespaces[] = {CLONE_NEWNS,  CLONE_NEWUTS, CLONE_NEWIPC,   CLONE_NEWUSER,
                                           CLONE_NEWPID, CLONE_NEWNET, CLONE_NEWCGROUP};

void refuse(const Filter &filter, const char *name, const scmp_arg_cmp &argument)
{
    const int number = seccomp_syscall_resolve_name(name);
    if (number != __NR_SCMP_ERROR)
        (void)seccomp_rule_add_array(filter.get(), SCMP_ACT_ERRNO(EPERM), number, 1, &argument);
}

// Calls that are refused only with certain arguments.
void refuseArguments(const Filter &filter)
{
#ifdef __s390__
    constexpr unsigned flags = 1;
#else
    constexpr unsigned flags = 0;
#endif
    for (const unsigned long flag : newNamespaces)
        refuse(filter, "clone", {flags, SCMP_CMP_MASKED_EQ, flag, flag});
    // Its flags are in memory, which filters cannot read; the C library falls back to clone().
    (void)seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0);
    refuse(filter, "prlimit64", {0, SCMP_CMP_NE, 0, 0});            // for another process
    refuse(filter, "prctl", {0, SCMP_CMP_EQ, PR_SET_PDEATHSIG, 0}); // would allow it to outlive the dialog
    // would insert input into a terminal
    refuse(filter, "ioctl", {1, SCMP_CMP_MASKED_EQ, 0xffffffff, TIOCSTI});
}

std::vector<sock_filter> build()
{
    const Filter filter(seccomp_init(SCMP_ACT_ALLOW));
    const platform::UniqueFd file(memfd_create("filter", MFD_CLOEXEC));
    if (!filter || !file)
        return {};
    for (const char *name : refused) {
        const int number = seccomp_syscall_resolve_name(name);
        if (number != __NR_SCMP_ERROR) // otherwise unknown to this architecture or library
            (void)seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), number, 0);
    }
    for (const int number : refusedNumbers)
        (void)seccomp_rule_add(filter.get(), SCMP_ACT_ERRNO(EPERM), number, 0);
    refuseArguments(filter);
    struct stat facts = {};
    if (seccomp_export_bpf(filter.get(), file.get()) != 0 || fstat(file.get(), &facts) != 0)
        return {};
    std::vector<sock_filter> program(static_cast<size_t>(facts.st_size) / sizeof(sock_filter));
    const ssize_t size = static_cast<ssize_t>(program.size() * sizeof(sock_filter));
    if (pread(file.get(), program.data(), static_cast<size_t>(size), 0) != size)
        return {};
    return program;
}

} // namespace

const std::vector<sock_filter> &systemCallFilter()
{
    static const std::vector<sock_filter> program = build();
    return program;
}

} // namespace host
