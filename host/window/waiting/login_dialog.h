// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/login.h"

#include <QPointer>
#include <QWidget>

namespace host {

// Asks for a user name and a password in a dialog above `parent`. Null when it is cancelled. May be called
// from any thread; the dialog is the main thread's. On another one `parent` has to be there: where it goes,
// the dialog goes with it, and there is no answer.
std::optional<Login> askForLogin(const LoginQuestion &question, const QPointer<QWidget> &parent);

} // namespace host
