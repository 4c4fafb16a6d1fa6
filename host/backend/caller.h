// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>
#include <sys/types.h>

namespace backend {

// The local user who submitted a job.
struct Caller
{
    uid_t uid = 0;
    gid_t gid = 0;
    std::string name;
};

// Identifies the user from AUTH_UID, which the scheduler gets from the kernel, not from the user name of the
// job. Null with an error of one sentence if there is no such user, or it is root.
std::optional<Caller> findCaller(std::string *error);

// Irrevocably becomes the user: with the user's groups, none of root's privileges, and an empty environment.
// False if any step fails; the process must then exit.
bool become(const Caller &caller);

} // namespace backend
