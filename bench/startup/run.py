#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Measures the start of kelmar-print until the printer's options are painted, and its memory at that time, compared
with a bare Qt dialog and with Qt's print dialog: for a PPD of the family, and for PPDs of 200 options with 1,000
and 20,000 constraints.

All programs run alternately on one Xvfb and one private cupsd, and medians are compared. The time of the bare
dialog is subtracted, since it is the start of any Qt program: (ours - bare) / (Qt's - bare). Exits with 1 if a goal
is missed. Usage: run.py BUILDDIR [REPETITIONS]"""
import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SHARE_GOAL = 0.12  # of the time that Qt's print dialog adds to a bare dialog, with a PPD of the family
LARGE_SHARE_GOAL = 0.10  # the same with MANY constraints
GROWTH_GOAL = 0.08  # of the growth of Qt's print dialog from FEW to MANY constraints
LIBCUPS_GROWTH_GOAL = 2.0  # times the growth of downloading, opening and marking with libcups
RESIDENT_GOAL = 1.0  # of Qt's print dialog, with a PPD of the family
LARGE_RESIDENT_GOAL = 0.75
FEW, MANY = 1000, 20000  # constraints
SOURCE = Path(__file__).resolve().parents[2]
CUPSD = SOURCE / "scripts/lib/private-cupsd.sh"


def launch(command, environment):
    """Runs a program with the time just before exec in KELMAR_T0_NS; returns its figures."""
    reading, writing = os.pipe()
    pid = os.fork()
    if pid == 0:
        os.dup2(writing, 1)
        os.dup2(os.open(os.devnull, os.O_WRONLY), 2)
        environment["KELMAR_T0_NS"] = str(time.clock_gettime_ns(time.CLOCK_MONOTONIC))
        try:
            os.execve(command[0], command, environment)
        finally:
            os._exit(127)
    os.close(writing)
    with os.fdopen(reading) as stream:
        text = stream.read()
    _, status = os.waitpid(pid, 0)
    if status != 0:
        raise SystemExit(f"{command[0]} failed: {text}")
    figures = {line.split("\t")[0]: float(line.split("\t")[1]) for line in text.splitlines() if line.count("\t") == 2}
    return figures["process start to options painted"], figures["resident memory with options"]


def measure(programs, environment, repetitions):
    """Runs the programs alternately; the first round only warms the caches."""
    samples = {name: [] for name in programs}
    for turn in range(repetitions + 1):
        for name, command in programs.items():
            figures = launch(command, dict(environment))
            if turn:
                samples[name].append(figures)
    return {
        name: (statistics.median(s[0] for s in rows), statistics.median(s[1] for s in rows))
        for name, rows in samples.items()
    }


def start_display(folder):
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
        pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.close(writing)
    with os.fdopen(reading) as stream:
        number = stream.readline().strip()
    return server, f":{number}"


def main():
    build = Path(sys.argv[1]).resolve()
    repetitions = int(sys.argv[2]) if len(sys.argv) > 2 else 21
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        folder.chmod(0o755)
        for part in ("home", "runtime"):
            (folder / part).mkdir(mode=0o700)
        server, display = start_display(folder)
        try:
            subprocess.run([CUPSD, "start", folder / "cups"], check=True, stdout=subprocess.DEVNULL)
            subprocess.run([CUPSD, "add-queue", folder / "cups", "office", build / "ppds/kelm880.ppd", "socket://127.0.0.42:9100"],
                           check=True, stdout=subprocess.DEVNULL)
            environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb", HOME=str(folder / "home"),
                               XDG_RUNTIME_DIR=str(folder / "runtime"), LC_ALL="C.UTF-8",
                               CUPS_SERVER=str(folder / "cups/cups.sock"))
            document = str(SOURCE / "demo/report.pdf")

            def dialogs(queue, panel):
                return {
                    "kelmar-print": [str(build / "bin/kelmar-print"), "-d", queue,
                                     "--panel", panel, "--startup-time", document],
                    "Qt print dialog, options shown": [str(build / "bench/qt_print_dialog"), queue],
                }
            programs = {("bare Qt dialog", 0): [str(build / "bench/qt_floor")]}
            queues = {0: "office"} | {count: f"large{count}" for count in (FEW, MANY)}
            for count, queue in queues.items():
                if count:
                    add_large_queue(folder, build, count)
                for name, command in dialogs(queue, "more" if count else "print-mode").items():
                    programs[name, count] = command
            for count in (FEW, MANY):
                programs["libcups alone", count] = [str(build / "bench/libcups_open"), queues[count]]
            measured = measure(programs, environment, repetitions)
        finally:
            subprocess.run([CUPSD, "stop", folder / "cups"], check=False, stdout=subprocess.DEVNULL)
            server.terminate()
            server.wait()
    return 1 if judge_all(measured) else 0


def add_large_queue(folder, build, constraints):
    path = folder / f"large{constraints}.ppd"
    with path.open("wb") as file:
        subprocess.run([build / "bench/large_ppd_file", str(constraints)], stdout=file, check=True)
    subprocess.run([CUPSD, "add-queue", folder / "cups", f"large{constraints}", path, "socket://127.0.0.42:9100"],
                   check=True, stdout=subprocess.DEVNULL)


def judge(what, ratio, goal):
    """Returns 1 if a goal is missed."""
    missed = ratio > goal
    print(f"{what}: {ratio:.3f}, goal at most {goal}: {'MISSED' if missed else 'met'}")
    return int(missed)


def judge_all(figures):
    for (name, count), (milliseconds, resident) in figures.items():
        what = f"{count} constraints" if count else ""
        print(f"{name:32} {milliseconds:7.1f} ms  {resident:7.0f} kB   {what}")
    bare = figures["bare Qt dialog", 0][0]
    own, peer, libcups = ({count: found for (name, count), found in figures.items() if name == wanted}
                          for wanted in ("kelmar-print", "Qt print dialog, options shown", "libcups alone"))

    def share(count):
        return (own[count][0] - bare) / (peer[count][0] - bare)

    def growth(of):
        return of[MANY][0] - of[FEW][0]
    return (judge("Own share of the start, family PPD", share(0), SHARE_GOAL)
            + judge(f"Own share of the start, {MANY} constraints", share(MANY), LARGE_SHARE_GOAL)
            + judge(f"Growth from {FEW} constraints, of Qt's", growth(own) / growth(peer), GROWTH_GOAL)
            + judge(f"Growth from {FEW} constraints, times libcups's", growth(own) / growth(libcups), LIBCUPS_GROWTH_GOAL)
            + judge("Resident memory, of Qt's, family PPD", own[0][1] / peer[0][1], RESIDENT_GOAL)
            + judge(f"Resident memory, of Qt's, {MANY} constraints", own[MANY][1] / peer[MANY][1], LARGE_RESIDENT_GOAL))


if __name__ == "__main__":
    sys.exit(main())
