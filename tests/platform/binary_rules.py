#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Checks that all programs and libraries in some folders search libraries only relative to themselves, and are hardened:
symbols bound at start-up, write-protected tables, code in a separate segment, a shadow stack, fortified functions.
An empty entry of a search path would mean the current folder.

Usage: binary_rules.py FOLDER...
"""
import pathlib
import re
import subprocess
import sys


def faults_of(path):
    dynamic = subprocess.run(["readelf", "-dlW", path], capture_output=True, text=True, check=True).stdout
    for search in re.findall(r"\((?:RPATH|RUNPATH)\).*\[(.*)\]", dynamic):
        for entry in search.split(":"):
            if not re.match(r"\$ORIGIN(/|$)", entry):
                yield f"looks for libraries in “{entry}”"
    if not re.search(r"\(FLAGS(_1)?\).*\b(BIND_NOW|NOW)\b", dynamic):
        yield "binds symbols late"
    if "GNU_RELRO" not in dynamic:
        yield "has no write-protected tables"
    loads = re.findall(r"^ *LOAD +(0x\w+) .* (R?W? ?E?) +0x\w+$", dynamic, re.M)
    if any("E" in flags and ("W" in flags or int(offset, 16) == 0) for offset, flags in loads) or not loads:
        yield "has code in a segment with other data"
    header = subprocess.run(["readelf", "-hnW", path], capture_output=True, text=True, check=True).stdout
    if re.search(r"Machine: .*X86-64", header) and "SHSTK" not in header:
        yield "has no note of the shadow stack"


def main(*folders):
    binaries = [path for folder in folders for path in sorted(pathlib.Path(folder).rglob("*"))
                if path.is_file() and not path.is_symlink() and path.suffix != ".o"
                and path.read_bytes()[:4] == b"\x7fELF"]
    names = {path.name: path for path in binaries}
    faults = [f"{name}: not found" for name in ("kelmar-print", "libOrbM880.so") if name not in names]
    faults += [f"{path}: {fault}" for path in binaries for fault in faults_of(path)]
    symbols = ""
    if program := names.get("kelmar-print"):
        symbols = subprocess.run(["readelf", "--dyn-syms", "-W", program], capture_output=True, text=True, check=True).stdout
    if not re.search(r"__\w+_chk@|__(asan|tsan)_init", symbols):
        faults.append("kelmar-print: no function is fortified")
    print("\n".join(faults))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
