// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/extensions/extensions.h"
#include "host/printing/print_system.h"

namespace host {

// Does one request of the service (dialog_channel.h): opens the dialog for an application that wants settings
// or has a document, or sends a document that has been decided about. `hasDisplay` tells whether anything can
// be shown. The exit code.
//
// A request has "kind": "choose" (settings alone), "print" (with a document; the dialog stays when the
// service goes), "document" (the same, of a queue, and from when it is seen), "submit" (a document with the
// "job" that a "choose" has answered) or "lost" (tells that the document "title" of a queue is lost).
// "document" is the number of an inherited descriptor. The rest is optional: "title", "parent" (window handle
// of the portal), "modal", "acceptLabel" (with GTK's mnemonic), "settings", "pageSetup", "abilities"
// (portal_settings.h), "copies" and "options" (of a print job).
int runDialogRequest(PrintSystem &system, Extensions &extensions, bool hasDisplay);

} // namespace host
