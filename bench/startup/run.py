#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Process start to first paint, and resident memory, of kelmar-print beside a bare Qt dialog and Qt's print dialog.

All three run in turn on one Xvfb and one private cupsd, so the ratios hold on any machine. Exits 1 when a goal is
missed. The same for a PPD of 200 options with 1,000 and with 20,000 constraints, its options shown, which shows what
grows with the PPD. Usage: run.py BUILDDIR [REPETITIONS]
"""
import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PAINT_GOAL = 1.2  # times the bare dialog
RESIDENT_GOAL = 1.0  # of Qt's print dialog; the large PPD likewise for the three below
LARGE_PAINT_GOAL = 0.25
LARGE_GROWTH_GOAL = 0.10
LARGE_RESIDENT_GOAL = 0.8
FEW, MANY = 1000, 20000  # constraints
SOURCE = Path(__file__).resolve().parents[2]
CUPSD = SOURCE / "scripts/lib/private-cupsd.sh"


def launch(command, environment):
    """Runs a program with the time just before exec in KELMAR_T0_NS; gives its figures."""
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
    return figures["process start to first paint"], figures["resident memory at first paint"]


def measure(programs, environment, repetitions):
    """Interleaved runs; the first round only warms the caches."""
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
    repetitions = int(sys.argv[2]) if len(sys.argv) > 2 else 15
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
            office = measure({"bare Qt dialog": [str(build / "bench/qt_floor")]} | dialogs("office", "print-mode"),
                             environment, repetitions)
            large = {}
            for count in (FEW, MANY):
                add_large_queue(folder, build, count)
                large[count] = dialogs(f"large{count}", "more")
            # All in turn, since one is taken from the other.
            measured = measure({(count, name): command for count in large for name, command in large[count].items()},
                               environment, max(repetitions // 3, 3))
        finally:
            subprocess.run([CUPSD, "stop", folder / "cups"], check=False, stdout=subprocess.DEVNULL)
            server.terminate()
            server.wait()
    return 1 if judge_office(office) + judge_large(measured) else 0


def add_large_queue(folder, build, constraints):
    path = folder / f"large{constraints}.ppd"
    with path.open("wb") as file:
        subprocess.run([build / "bench/large_ppd_file", str(constraints)], stdout=file, check=True)
    subprocess.run([CUPSD, "add-queue", folder / "cups", f"large{constraints}", path, "socket://127.0.0.42:9100"],
                   check=True, stdout=subprocess.DEVNULL)


def judge(what, ratio, goal):
    """1 for a goal that is missed."""
    missed = ratio > goal
    print(f"{what}: {ratio:.3f}, goal at most {goal}: {'MISSED' if missed else 'met'}")
    return int(missed)


def judge_office(figures):
    floor, own = figures["bare Qt dialog"], figures["kelmar-print"]
    peer = figures["Qt print dialog, options shown"]
    for name, (paint, resident) in figures.items():
        print(f"{name:32} {paint:7.1f} ms  {paint / floor[0]:5.2f} x  {resident:7.0f} kB")
    return (judge("First paint beside a bare Qt dialog", own[0] / floor[0], PAINT_GOAL)
            + judge("Resident memory beside Qt's print dialog", own[1] / peer[1], RESIDENT_GOAL))


def judge_large(figures):
    for (count, name), (paint, resident) in figures.items():
        print(f"{name:32} {paint:7.1f} ms           {resident:7.0f} kB   {count} constraints")
    own, peer = ({count: figures[count, name] for count in (FEW, MANY)}
                 for name in ("kelmar-print", "Qt print dialog, options shown"))
    return (judge(f"{MANY} constraints, options shown, beside Qt's print dialog", own[MANY][0] / peer[MANY][0],
                  LARGE_PAINT_GOAL)
            + judge(f"What it grows by from {FEW} constraints, beside what Qt's grows by",
                    (own[MANY][0] - own[FEW][0]) / (peer[MANY][0] - peer[FEW][0]), LARGE_GROWTH_GOAL)
            + judge(f"Resident memory with {MANY} constraints beside Qt's print dialog", own[MANY][1] / peer[MANY][1],
                    LARGE_RESIDENT_GOAL))


if __name__ == "__main__":
    sys.exit(main())
