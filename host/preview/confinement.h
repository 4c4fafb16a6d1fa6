// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QByteArray>

#include <vector>

#include <linux/filter.h>
#include <sys/types.h>

namespace host {

// What keeps a program that reads a document from everything else: NO_NEW_PRIVS, no capabilities, landlock,
// seccomp and namespaces, as far as the kernel has them. Where it lacks one, that is logged once in this
// process, and the others hold. Prepared before the new process is created, and applied by that process with
// system calls only. Used on one thread.
class Confinement
{
public:
    // Bits.
    enum Part : unsigned { Files = 1, SystemCalls = 2, Namespaces = 4, Privileges = 8 };

    // `program` and `folder` are absolute paths, and the folder is the process's own. `document` is a
    // descriptor that the program may open again; `size` is how much it may write into the folder, in bytes.
    Confinement(const QByteArray &program, const QByteArray &folder, int document, qint64 size);

    // The user's folder for caches (XDG_CACHE_HOME). Programs may read what fontconfig keeps there, and take
    // much longer where the system's own cache is not up to date and this one is not known either.
    static QByteArray cacheFolder();

    // Creates a process in new namespaces, as far as they can be had, that calls `run`; fills in `handle`, a
    // descriptor of the process. -1 with errno. As with vfork(), the process has this one's memory until
    // exec, and this thread stands still: copying the page tables of a dialog takes longer than all the rest.
    pid_t start(int (*run)(void *), void *argument, platform::UniqueFd *handle);

    // In the new process: enterNamespaces() first, giveUpRights() right before exec, since less is possible
    // afterwards. The latter returns the parts that could not be applied.
    void enterNamespaces() const noexcept;
    unsigned giveUpRights() const noexcept;

    // Logs which parts are missing, each once in this process.
    static void logMissing(unsigned parts);

private:
    void allow(const char *path, quint64 access) const;

    QByteArray m_folder;
    QByteArray m_folderOptions; // of the file system that is mounted there
    platform::UniqueFd m_rules; // of landlock; none where the kernel has no landlock
    const std::vector<sock_filter> *m_filter;
    QByteArray m_userMap, m_groupMap;
    quint64 m_handledAccess = 0;
    bool m_hasUsers = false; // a user namespace of its own
};

} // namespace host
