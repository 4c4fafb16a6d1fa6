// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/page_settings.h"

namespace host {

class DialogSession;

// What a session's settings do to the pages of a document, as far as that is known outside the printer.
// Nothing secret.
PageSettings pageSettings(const DialogSession &session);

// Whether a session prints on both sides of the paper.
bool isTwoSided(const DialogSession &session);

} // namespace host
