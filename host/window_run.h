// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/batch/arguments.h"
#include "host/extensions/extensions.h"
#include "host/printing/print_system.h"

class QIODevice;

namespace host {

// Runs the dialog for a command line; also takes its screenshot or measures its start-up time. Returns the
// exit code.
int runWindow(const Arguments &arguments, PrintSystem &system, Extensions &extensions, QIODevice *out,
              QIODevice *err);

} // namespace host
