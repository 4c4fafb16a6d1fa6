// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

namespace host {

// The path of kelmar-print-service, which speaks with the session bus for the dialog: the one beside the
// program, as in a build folder, else the installed one. The file may be missing.
QString serviceProgram();

} // namespace host
