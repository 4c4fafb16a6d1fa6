#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Writes host/startup_order.ld: where the linker puts the functions of kelmar-print that run before the first paint.

They lie beside each other, so that a start maps them and little else. A function that is missing from the list, or gone,
costs some memory and breaks nothing; write the list anew when bench/startup/run.py says that a start takes more.
Needs valgrind, which knows only what lies in .text. Usage: order.py BUILDDIR, which is a release build configured with
-DKELMAR_ORDERS_FUNCTIONS=OFF.
"""
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from run import CUPSD, SOURCE, start_display

ORDER = SOURCE / "host/startup_order.ld"
STARTS = [["-d", "office", *page] for page in ([], ["--panel", "print-mode"], ["--panel", "more"])]


def functions(profile):
    """Those of kelmar-print that a profile of callgrind names; it writes a name out once and numbers it afterwards."""
    names, objects, found, here = {}, {}, [], False
    for line in profile.read_text().splitlines():
        match = re.match(r"(c?)(ob|fn)=\((\d+)\)(?: (.*))?$", line)
        if not match:
            continue
        called, kind, number, name = match.groups()
        known = objects if kind == "ob" else names
        if name:
            known[number] = name
        if called:
            continue
        if kind == "ob":
            here = objects[number].endswith("/kelmar-print")
        elif here and names[number].startswith("_Z"):
            found.append(names[number].split("'")[0])  # 'NUMBER is the depth of a recursion
    return found


def with_aliases(names, program):
    """A constructor or destructor has two names, and its section is called after either."""
    names_at = {}
    for line in subprocess.run(["nm", program], check=True, capture_output=True, text=True).stdout.splitlines():
        fields = line.split()
        if len(fields) == 3 and fields[2].startswith("_Z"):
            names_at.setdefault(fields[0], set()).add(fields[2])
    if len(names) < len(names_at) // 20:
        raise SystemExit(f"{program} is linked in an order already, or did not come up")
    return names.union(*(group for group in names_at.values() if group & names))


def write(names):
    sections = [".text.startup .text.startup.*", *(f".text.{name}" for name in sorted(names))]
    ORDER.write_text("/* SPDX-FileCopyrightText: 2026 The kelmar-print authors\n   SPDX-License-Identifier: Apache-2.0\n"
                     "   Written by bench/startup/order.py. */\n"
                     "SECTIONS\n{\n  .text.before_paint :\n  {\n"
                     + "".join(f"    *({section})\n" for section in sections)
                     + "  }\n}\nINSERT BEFORE .text;\n"
                     # Translations and help out of the way of the constants.
                     "SECTIONS\n{\n  .resources :\n  {\n    *(.rodata._ZL16qt_resource_data)\n  }\n}\n"
                     "INSERT AFTER .rodata;\n")
    print(f"{len(names)} functions in {ORDER}")


def main():
    build = Path(sys.argv[1]).resolve()
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        folder.chmod(0o755)
        server, display = start_display(folder)
        try:
            subprocess.run([CUPSD, "start", folder / "cups"], check=True, stdout=subprocess.DEVNULL)
            subprocess.run([CUPSD, "add-queue", folder / "cups", "office", build / "ppds/kelm880.ppd",
                            "socket://127.0.0.42:9100"], check=True, stdout=subprocess.DEVNULL)
            environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb", HOME=name, LC_ALL="C.UTF-8",
                               CUPS_SERVER=str(folder / "cups/cups.sock"))
            found = set()
            for number, arguments in enumerate(STARTS):
                profile = folder / f"profile{number}"
                subprocess.run(["valgrind", "-q", "--tool=callgrind", "--demangle=no",
                                f"--callgrind-out-file={profile}", build / "bin/kelmar-print", *arguments,
                                "--startup-time", SOURCE / "demo/report.pdf"],
                               env=environment, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                found.update(functions(profile))
        finally:
            subprocess.run([CUPSD, "stop", folder / "cups"], check=False, stdout=subprocess.DEVNULL)
            server.terminate()
            server.wait()
    write(with_aliases(found, build / "bin/kelmar-print"))


if __name__ == "__main__":
    main()
