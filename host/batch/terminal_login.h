// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/login.h"

namespace host {

// Asks for a user name and a password on the controlling terminal, even if the standard streams are
// redirected. The password is not echoed. Null if there is no terminal, the input ends, a signal arrives, or
// several answers were not accepted.
std::optional<Login> askOnTerminal(const LoginQuestion &question);

} // namespace host
