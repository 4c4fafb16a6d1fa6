#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Creates an artificial language: all texts of program and bundle, accented, longer and in brackets.

    pseudo_catalog.py BUILD SOURCE LUPDATE LRELEASE

Creates kelmar-print_pseudo.qm, and a copy of the bundle with these texts as English, in BUILD/tests/pseudo/ltr, and
the same as a right-to-left language in BUILD/tests/pseudo/rtl. Texts without brackets are not translated; texts
that do not fit would not fit in a language with long words."""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ET

ACCENTS = str.maketrans("abcdeghijklnoprstuvwyzACDEGHIJKLNORSTUWYZ", "åƀçđéğĥíĵķłñöþřšťůvŵýžÅÇĎÉĞĤÍĴĶŁÑÖŘŠŤŮŴÝŽ")
FIXED = re.compile(r"(%L?\d+|%n|&&|&|\n)")


def pseudo(text, mark):
    parts = FIXED.split(text)
    long = "".join(part if FIXED.fullmatch(part) else part.translate(ACCENTS) for part in parts)
    extra = len(text) * 2 // 5 if len(text) > 4 else len(text)
    padding = "".join(" " if i % 7 == 6 else "ö" for i in range(extra))
    return mark + "⟦" + long + padding.rstrip() + "⟧"


def translate(source, target, by_translation, mark):
    """With `by_translation` the English texts are the translations, and the sources may be keys."""
    tree = ET.parse(source)
    tree.getroot().set("language", "en")
    for message in tree.iter("message"):
        translation = message.find("translation")
        text = message.findtext("source")
        if by_translation and translation.text:
            text = translation.text
        translation.attrib.pop("type", None)
        for child in list(translation):
            translation.remove(child)
        if message.get("numerus") == "yes":
            translation.text = None
            for _ in range(2):
                ET.SubElement(translation, "numerusform").text = pseudo(text, mark)
        else:
            translation.text = pseudo(text, mark)
    tree.write(target, encoding="utf-8", xml_declaration=True)


def main():
    build, source, lupdate, lrelease = sys.argv[1:]
    os.umask(0o022)
    out = pathlib.Path(build, "tests", "pseudo")
    shutil.rmtree(out, ignore_errors=True)
    out.mkdir(parents=True)
    subprocess.run([lupdate, "-silent", "-locations", "none", "-I", source, f"{source}/host", f"{source}/platform",
                    "-ts", out / "host.ts"], check=True)
    strings = pathlib.Path(source, "resources", "strings", "OrbM880_en.ts")
    for name, mark in (("ltr", ""), ("rtl", "\u200f")):
        language = out / name
        shutil.copytree(pathlib.Path(build, "bin", "OrbM880.bundle"), language / "OrbM880.bundle")
        for ts, qm, by_translation in ((out / "host.ts", "kelmar-print_pseudo.qm", False),
                                       (strings, "OrbM880.bundle/strings/OrbM880_en.qm", True)):
            translate(ts, language / "pseudo.ts", by_translation, mark)
            subprocess.run([lrelease, "-silent", language / "pseudo.ts", "-qm", language / qm], check=True)


main()
