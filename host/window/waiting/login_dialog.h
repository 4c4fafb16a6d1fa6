// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/login.h"

#include <QPointer>
#include <QWidget>

namespace host {

// Asks for a user name and a password in a dialog above `parent`, and waits for the answer. Null if the user
// cancels. May be called from any thread; the dialog runs on the main thread. A call from another thread
// requires a parent; if the parent is destroyed, the dialog is destroyed as well, and the result is null.
std::optional<Login> askForLogin(const LoginQuestion &question, const QPointer<QWidget> &parent);

} // namespace host
