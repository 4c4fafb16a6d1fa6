// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/batch/arguments.h"

namespace host {

// Reads the values that come from a file, the standard input or the terminal, so that they do not appear on
// the command line, which all users can read. A value is the first line, without the line end. False with a
// message that contains only the key if there is no value, or it is not text or longer than 4,096 bytes;
// nothing is read beyond that.
bool fetchValues(Arguments *arguments, QString *error);

} // namespace host
