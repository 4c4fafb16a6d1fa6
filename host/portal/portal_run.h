// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/extensions.h"
#include "host/printing/print_system.h"

namespace host {

// Handles one request of the service (dialog_channel.h): opens the dialog for an application that requests
// settings or has a document, or sends a document with settings that were already confirmed. `hasDisplay` is
// whether a window can be shown. Returns the exit code.
//
// A request has "kind": "choose" (settings only), "print" (with a document; the dialog stays open when the
// service exits), "document" (the same for a document from a queue, once the dialog is visible), "submit" (a
// document with the "job" from the answer to a "choose") or "lost" (reports that the document "title" from a
// queue is lost). "document" is the number of an inherited descriptor. All other members are optional:
// "title", "parent" (window handle of the portal), "modal", "acceptLabel" (with GTK's mnemonic), "settings",
// "pageSetup", "abilities" (portal_settings.h), "copies" and "options" (of a print job).
int runDialogRequest(PrintSystem &system, Extensions &extensions, bool hasDisplay);

} // namespace host
