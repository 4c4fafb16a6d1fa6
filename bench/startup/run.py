#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Measures the start of kelmar-print until the printer's options are painted, and its memory at that time, compared
with a bare Qt dialog and with Qt's print dialog: for a PPD of the family, and for PPDs of 200 options with 1,000
and 20,000 constraints.

All programs run alternately on one Xvfb and one private cupsd, and medians are compared. The time of the bare
dialog is subtracted, since it is the start of any Qt program: (ours - bare) / (Qt's - bare). Exits with 1 if a goal
is missed. Usage: run.py BUILDDIR [REPETITIONS]"""
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))
from session import DOCUMENT, Session  # noqa: E402

SHARE_GOAL = 0.12  # of the time that Qt's print dialog adds to a bare dialog, with a PPD of the family
LARGE_SHARE_GOAL = 0.10  # the same with MANY constraints
GROWTH_GOAL = 0.08  # of the growth of Qt's print dialog from FEW to MANY constraints
LIBCUPS_GROWTH_GOAL = 2.0  # times the growth of downloading, opening and marking with libcups
RESIDENT_GOAL = 1.0  # of Qt's print dialog, with a PPD of the family
LARGE_RESIDENT_GOAL = 0.75
FAMILY, FEW, MANY = "family", 1000, 20000  # a PPD of the family; numbers of constraints
BARE, OURS, QT, GTK, LIBCUPS = "bare Qt dialog", "kelmar-print", "Qt print dialog", "GTK print dialog", "libcups alone"
OURS_GENERAL, BARE_CUPS = "kelmar-print, page \"General\"", "bare Qt dialog with libcups loaded"


def dialogs(build, queue, panel):
    """The command of each dialog that opens on a queue with the options shown, by name."""
    found = {OURS: [str(build / "bin/kelmar-print"), "-d", queue, "--panel", panel, "--startup-time", str(DOCUMENT)],
             QT: [str(build / "bench/qt_print_dialog"), queue]}
    gtk = build / "bench/gtk_print_dialog"
    return found | ({GTK: [str(gtk), queue]} if gtk.exists() else {})


def measure(build, counts, repetitions, peers=(QT, LIBCUPS)):
    """Medians by (program, number of constraints), also for a PPD of the family."""
    with Session() as session:
        session.add_queue("office", build / "ppds/kelm880.ppd")
        programs = {(BARE, FAMILY): [str(build / "bench/qt_floor")], (BARE_CUPS, FAMILY): [str(build / "bench/qt_cups_floor")]}
        for count in counts:
            is_family = count == FAMILY
            queue = "office" if is_family else session.add_large_queue(build, count)
            commands = dialogs(build, queue, "print-mode" if is_family else "more")
            if is_family:
                programs[OURS_GENERAL, count] = dialogs(build, queue, "general")[OURS]
            else:
                commands[LIBCUPS] = [str(build / "bench/libcups_open"), queue]
            programs |= {(name, count): command for name, command in commands.items() if name == OURS or name in peers}
        return session.measure(programs, repetitions)


def goals(figures):
    """Tuples of a ratio's name, its value and its goal."""
    bare = figures[BARE, FAMILY][0]
    own, peer, libcups = ({count: found for (name, count), found in figures.items() if name == wanted}
                          for wanted in (OURS, QT, LIBCUPS))

    def share(count):
        return (own[count][0] - bare) / (peer[count][0] - bare)

    def growth(of):
        return of[MANY][0] - of[FEW][0]
    yield "Own share of the start, family PPD", share(FAMILY), SHARE_GOAL
    yield f"Own share of the start, {MANY:,} constraints", share(MANY), LARGE_SHARE_GOAL
    yield f"Growth from {FEW:,} constraints, relative to Qt's", growth(own) / growth(peer), GROWTH_GOAL
    yield f"Growth from {FEW:,} constraints, relative to libcups", growth(own) / growth(libcups), LIBCUPS_GROWTH_GOAL
    yield "Resident memory, relative to Qt's, family PPD", own[FAMILY][1] / peer[FAMILY][1], RESIDENT_GOAL
    yield f"Resident memory, relative to Qt's, {MANY:,} constraints", own[MANY][1] / peer[MANY][1], LARGE_RESIDENT_GOAL


def main():
    build = Path(sys.argv[1]).resolve()
    repetitions = int(sys.argv[2]) if len(sys.argv) > 2 else 21
    figures = measure(build, (FAMILY, FEW, MANY), repetitions)
    for (name, count), (milliseconds, resident) in figures.items():
        what = "" if count == FAMILY else f"{count} constraints"
        print(f"{name:34} {milliseconds:7.1f} ms  {resident:7.0f} kB   {what}")
    missed = 0
    for what, ratio, goal in goals(figures):
        missed += ratio > goal
        print(f"{what}: {ratio:.3f}, goal at most {goal}: {'MISSED' if ratio > goal else 'met'}")
    return int(missed > 0)


if __name__ == "__main__":
    sys.exit(main())
