// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/login.h"

#include <QPointer>
#include <QWidget>

namespace host {

// Asks for a user name and a password in a dialog above `parent`. Null if it is canceled. May be called from
// any thread; the dialog runs on the main thread. On another thread `parent` must exist; if it is destroyed,
// the dialog is destroyed as well, and the result is null.
std::optional<Login> askForLogin(const LoginQuestion &question, const QPointer<QWidget> &parent);

} // namespace host
