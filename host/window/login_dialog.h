// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/server_connection.h"

class QWidget;

namespace host {

// Asks for a user name and a password in a dialog above `parent`. Nil when it is cancelled. May be called
// from any thread; the dialog is the main thread's.
std::optional<Login> askForLogin(const LoginQuestion &question, QWidget *parent);

} // namespace host
