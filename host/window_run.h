// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/batch/arguments.h"
#include "host/extensions/extensions.h"
#include "host/printing/print_system.h"

class QIODevice;

namespace host {

// Opens the dialog for a command line and runs it to its end; also takes its picture or its start-up time.
// The exit code.
int runWindow(const Arguments &arguments, PrintSystem &system, Extensions &extensions, QIODevice *out,
              QIODevice *err);

} // namespace host
