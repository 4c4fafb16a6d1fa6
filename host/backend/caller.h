// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <optional>
#include <string>
#include <sys/types.h>

namespace backend {

// The local user that a job came from.
struct Caller
{
    uid_t uid = 0;
    gid_t gid = 0;
    std::string name;
};

// What the scheduler has from the kernel (AUTH_UID), never what the job says of itself. Null with an error,
// one sentence, when there is no such user, or it is root.
std::optional<Caller> findCaller(std::string *error);

// Becomes that user for good: all of its groups and none of root's, an empty environment, and no way back.
// False when anything of this fails; then the process must end.
bool become(const Caller &caller);

} // namespace backend
