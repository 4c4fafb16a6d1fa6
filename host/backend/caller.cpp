// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/backend/caller.h"

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <grp.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace backend {

namespace {

constexpr uid_t invalidUid = static_cast<uid_t>(-1);

std::optional<uid_t> authenticatedUid()
{
    const char *text = std::getenv("AUTH_UID");
    if (!text)
        return std::nullopt;
    uid_t uid = invalidUid;
    const char *end = text + std::strlen(text);
    const auto [rest, problem] = std::from_chars(text, end, uid);
    if (problem != std::errc() || rest != end || uid == invalidUid)
        return std::nullopt;
    return uid;
}

// The scheduler exports no user ID for root, only the authenticated name.
bool isRoot(const std::optional<uid_t> &uid)
{
    const char *name = std::getenv("AUTH_USERNAME");
    return uid ? *uid == 0 : !std::getenv("AUTH_UID") && name && std::strcmp(name, "root") == 0;
}

} // namespace

std::optional<Caller> findCaller(std::string *error)
{
    const auto uid = authenticatedUid();
    if (isRoot(uid)) {
        *error = "This queue opens no dialog for the system administrator (root).";
        return std::nullopt;
    }
    if (!uid) {
        *error =
            "This queue opens a dialog and takes jobs only from users who are signed in on this computer.";
        return std::nullopt;
    }
    const passwd *entry = ::getpwuid(*uid);
    if (!entry) {
        *error = "There is no user with the number " + std::to_string(*uid) + ".";
        return std::nullopt;
    }
    return Caller{*uid, entry->pw_gid, entry->pw_name};
}

bool become(const Caller &caller)
{
    ::umask(077);
    const bool changed = ::initgroups(caller.name.c_str(), caller.gid) == 0 &&
                         ::setresgid(caller.gid, caller.gid, caller.gid) == 0 &&
                         ::setresuid(caller.uid, caller.uid, caller.uid) == 0 && ::clearenv() == 0 &&
                         ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::chdir("/") == 0;
    return changed && ::setuid(0) != 0 && ::getuid() == caller.uid && ::geteuid() == caller.uid;
}

} // namespace backend
