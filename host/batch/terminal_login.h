// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/login.h"

namespace host {

// Asks for a user name and a password on the controlling terminal, whatever the standard streams are; the
// password is not echoed. Null without a terminal, if the input ends or a signal arrives, and after a few
// answers that were not accepted.
std::optional<Login> askOnTerminal(const LoginQuestion &question);

} // namespace host
