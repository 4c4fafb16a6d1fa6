// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// The path of kelmar-print-service, which communicates with the session bus for the dialog: in the program's
// folder, as in a build tree, else the installed one. The file may not exist.
QString serviceProgram();

} // namespace host
