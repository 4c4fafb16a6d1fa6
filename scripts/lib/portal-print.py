#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""An application that prints through the desktop's print portal with all options of the portal's latest version. Prints the
version, the answer of the dialog, and whether the document was accepted. Usage: portal-print.py DOCUMENT"""
import os
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib

PORTAL = ("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Print")
ABILITIES = {
    "accept_label": GLib.Variant("s", "Contin_ue"),
    "supported_output_file_formats": GLib.Variant("as", ["ps", "pdf"]),
    "has_current_page": GLib.Variant("b", True),
    "has_selected_pages": GLib.Variant("b", True),
}

bus = Gio.bus_get_sync(Gio.BusType.SESSION)
portal = Gio.DBusProxy.new_sync(bus, Gio.DBusProxyFlags.NONE, None, *PORTAL)
calls = 0


def call(method, signature, *arguments, fds=None, options=None):
    """Sends a request and returns its response code and results."""
    global calls
    calls += 1
    token = f"t{calls}"
    sender = bus.get_unique_name()[1:].replace(".", "_")
    handle = f"/org/freedesktop/portal/desktop/request/{sender}/{token}"
    loop, answer = GLib.MainLoop(), []

    def responded(*signal):
        answer.extend(signal[-1].unpack())
        loop.quit()

    bus.signal_subscribe(None, "org.freedesktop.portal.Request", "Response", handle, None, 0, responded)
    options = {"handle_token": GLib.Variant("s", token), **(options or {})}
    portal.call_with_unix_fd_list_sync(method, GLib.Variant(signature, (*arguments, options)), 0, -1, fds, None)
    loop.run()
    return answer


version = portal.get_cached_property("version").unpack()
print("   portal version:", version)
code, results = call("PreparePrint", "(ssa{sv}a{sv}a{sv})", "", "Print", {}, {}, options=ABILITIES)
settings = results.get("settings", {})
print(f"   response {code}:", " ".join(f"{key}={value}" for key, value in sorted(settings.items())))
if code:
    sys.exit(1)
# Version 4 passes on what is selected, and the selection was chosen in the dialog.
expected = {"output-file-format": "pdf", "print-pages": "selection" if version >= 4 else "all"}
if any(settings.get(key) != value for key, value in expected.items()):
    sys.exit(f"   expected: {expected}")
with open(sys.argv[1], "rb") as document:
    fds = Gio.UnixFDList.new()
    fds.append(os.dup(document.fileno()))
    token = {"token": GLib.Variant("u", results["token"])}
    code, _ = call("Print", "(ssha{sv})", "", "A letter", 0, fds=fds, options=token)
print("   the document:", "taken" if code == 0 else f"response {code}")
sys.exit(code)
