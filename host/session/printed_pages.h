// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/page_settings.h"
#include "host/printing/print_error.h"

#include <optional>

namespace host {

class DialogSession;

// The effect of a session's settings on the pages of a document, as far as it does not depend on the
// printer's hardware. Contains no secrets.
PageSettings pageSettings(const DialogSession &session);

// The same for checkPages(); null if documents reach the printer unchanged and cannot be checked.
std::optional<PageSettings> settingsForCheck(const DialogSession &session);

// Why documents cannot be scaled: they reach the printer unchanged. A sentence; null if they can.
QString scalingObstacle(const DialogSession &session);

// An error if the settings ask for a scale although documents cannot be scaled; otherwise empty.
PrintError scalingProblem(const DialogSession &session);

// Whether a session prints on both sides of the paper.
bool isTwoSided(const DialogSession &session);

} // namespace host
