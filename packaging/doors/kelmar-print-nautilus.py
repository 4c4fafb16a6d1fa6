# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Adds "Print…" to the menu of documents in the file manager. Loaded by nautilus-python if it is installed."""
import locale
import subprocess

from gi.repository import GObject, Nautilus

TYPES = {"application/pdf", "application/postscript", "image/png", "image/jpeg", "image/tiff", "image/gif", "text/plain"}
LABELS = {"de": "Drucken …", "fr": "Imprimer…", "ja": "印刷…", "es": "Imprimir…", "it": "Stampa…"}


class KelmarPrintMenu(GObject.GObject, Nautilus.MenuProvider):
    def get_file_items(self, *arguments):
        files = arguments[-1]  # older versions pass a window first
        paths = [file.get_location().get_path() for file in files]
        if not paths or None in paths or any(file.get_mime_type() not in TYPES for file in files):
            return []
        language = (locale.getlocale(locale.LC_MESSAGES)[0] or "")[:2]
        item = Nautilus.MenuItem(name="KelmarPrint::print", label=LABELS.get(language, "Print…"), icon="kelmar-print")
        item.connect("activate", lambda _item: subprocess.Popen(["kelmar-print", "--", *paths]))
        return [item]

    def get_background_items(self, *_arguments):
        return []
