// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/batch/arguments.h"

namespace host {

// Values that are not on the command line, where every user of the machine could read them.

// Puts the value in place of where it comes from, for each assignment that names a file, the standard input
// or the terminal: the first line, without its end. False with a message, which names the key alone, when
// there is none, or one that is no text or longer than 4,096 bytes; nothing is read beyond that.
bool fetchValues(Arguments *arguments, QString *error);

} // namespace host
