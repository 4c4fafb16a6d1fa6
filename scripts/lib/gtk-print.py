#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""A GTK 3 program that prints five pages and reports the result. With GTK_USE_PORTAL=1 it prints through the desktop's
portal. Usage: gtk-print.py [NAME=VALUE...], the settings saved from an earlier run."""
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import GLib, Gtk

PAGES = 5
drawn = []


def draw(_operation, context, number):
    cairo = context.get_cairo_context()
    cairo.set_font_size(40)
    cairo.move_to(100, 200)
    cairo.show_text(f"Page {number + 1}")
    drawn.append(number + 1)


def show_printing(window):
    operation = Gtk.PrintOperation(n_pages=PAGES, job_name="Quarterly report", embed_page_setup=True)
    settings = Gtk.PrintSettings()
    for assignment in sys.argv[1:]:
        settings.set(*assignment.split("=", 1))
    operation.set_print_settings(settings)
    operation.connect("draw-page", draw)
    try:
        result = operation.run(Gtk.PrintOperationAction.PRINT_DIALOG, window)
        print(f"   GTK says: {result.value_nick}; drawn: pages {drawn}")
        kept = []
        operation.get_print_settings().foreach(lambda key, value: kept.append(f"{key}={value}"))
        print("   kept by the application:", " ".join(sorted(kept)))
    except GLib.Error as error:
        print("   GTK says:", error.message)
    GLib.timeout_add(4000, Gtk.main_quit)  # the document is sent after the dialog
    return False


window = Gtk.Window(title="A GTK program", default_width=500, default_height=400)
window.show_all()
GLib.timeout_add(500, show_printing, window)
Gtk.main()
