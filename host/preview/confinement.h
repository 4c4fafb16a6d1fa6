// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "platform/unique_fd.h"

#include <QByteArray>

#include <vector>

#include <linux/filter.h>
#include <sys/types.h>

namespace host {

// Confines a program that reads a document with NO_NEW_PRIVS, landlock, seccomp and namespaces, as far as the
// kernel supports them, and without capabilities. A missing mechanism is logged once per process; the others
// are used. The confinement is prepared before the new process is created, and applied in that process with
// system calls only. Used on one thread.
class Confinement
{
public:
    // A bit mask.
    enum Part : unsigned { Files = 1, SystemCalls = 2, Namespaces = 4, Privileges = 8 };

    // `program` and `folder` are absolute paths, and the folder is used by this process only. `document` is a
    // descriptor that the program may open again; `size` is the maximum size of the folder's contents in
    // bytes.
    Confinement(const QByteArray &program, const QByteArray &folder, int document, qint64 size);

    // The user's cache folder (XDG_CACHE_HOME). Programs may read fontconfig's cache there; without it they
    // take much longer if the system's cache is not up to date.
    static QByteArray cacheFolder();

    // Creates a process in new namespaces, as far as possible, that calls `run`. Returns its ID, or -1 with
    // errno, and sets `handle` to a descriptor of the process. As with vfork(), the process shares the memory
    // of this program until exec, and this thread is suspended meanwhile: copying the page tables of the
    // dialog would take longer than everything else.
    pid_t start(int (*run)(void *), void *argument, platform::UniqueFd *handle);

    // For the new process: call enterNamespaces() first, and giveUpRights() right before exec, since it
    // restricts what is possible afterwards. Returns the parts that could not be applied.
    void enterNamespaces() const noexcept;
    unsigned giveUpRights() const noexcept;

    // Logs missing parts, each once per process.
    static void logMissing(unsigned parts);

private:
    void allow(const char *path, quint64 access) const;

    QByteArray m_folder;
    QByteArray m_folderOptions; // of the file system that is mounted there
    platform::UniqueFd m_rules; // of landlock; none if the kernel has no landlock
    const std::vector<sock_filter> *m_filter;
    QByteArray m_userMap, m_groupMap;
    quint64 m_handledAccess = 0;
    bool m_hasUsers = false; // has its own user namespace
};

} // namespace host
