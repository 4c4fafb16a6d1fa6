#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Measures everything of the release build and writes docs/performance.md with its plots in docs/pictures. Takes less
than ten minutes on a machine that is not busy; builds nothing. Needs valgrind, and for GTK's dialog a build with
libgtk-3-dev. Usage: bench/report.py [BUILDDIR [REPETITIONS]]"""
import platform
import re
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
sys.path.insert(0, str(Path(__file__).resolve().parent / "startup"))
import after_start  # noqa: E402
import run as startup  # noqa: E402
from plot import line_plot  # noqa: E402
from session import SOURCE, START_TIMEOUT, Session  # noqa: E402

CONSTRAINTS = (0, startup.FEW, 5000, 10000, startup.MANY)
QUEUES = (1, 100, 1000, 10000)
SERIES = (startup.OURS, startup.QT, startup.GTK, startup.BARE)
# Parts of the main thread's work, and the functions that do it. No part contains another, but several of them load fonts.
COSTS = {
    "loading and binding the libraries of the program": ("dl_main",),
    "connecting to the display": ("QGuiApplicationPrivate::createPlatformIntegration()",),
    "fonts": ("QFontDatabasePrivate::findFont",),
    "the printer's panels": ("host::DialogSession::loadPanels",),
    "the page": ("host::PageBook::showPage",),
    "layout": ("QLayout::activate()",),
    "painting": ("QWidgetRepaintManager::paintAndFlush()",),
}


def queue_figures(build, repetitions):
    """Medians by (program, number of queues)."""
    figures = {}
    for count in QUEUES:
        with Session(count - 1) as session:
            session.add_queue("office", build / "ppds/kelm880.ppd")
            programs = {(name, count): command for name, command in startup.dialogs(build, "office", "print-mode").items()}
            programs[startup.BARE, count] = [str(build / "bench/qt_floor")]
            # Afterwards, since the print server works on its requests for a long time, even when it has been killed.
            last = {(startup.GTK, count): programs.pop((startup.GTK, count))}
            for group in (programs, last):
                figures |= session.measure(group, repetitions if count < 1000 else 1)
    return figures


def costs(build):
    """The instructions that the main thread executes until the program ends, as soon as the options are painted, in
    millions: of each part, and in total."""
    with Session() as session:
        session.add_queue("office", build / "ppds/kelm880.ppd")
        out = session.folder / "callgrind"
        command = startup.dialogs(build, "office", "print-mode")[startup.OURS]
        subprocess.run(["valgrind", "--tool=callgrind", "--separate-threads=yes", f"--callgrind-out-file={out}", *command],
                       env=session.environment, check=True, capture_output=True)
        text = subprocess.run(["callgrind_annotate", "--inclusive=yes", "--threshold=100", f"{out}-01"], check=True,
                              capture_output=True, text=True).stdout
    lines = [(int(number.replace(",", "")), name) for number, name in
             re.findall(r"^ *([\d,]+) \(.*?\)  \S*?:(\S.*?) \[", text, re.MULTILINE)]
    total = int(re.search(r"^ *([\d,]+) .*PROGRAM TOTALS", text, re.MULTILINE)[1].replace(",", ""))

    def of(function):
        return max((number for number, name in lines if name.startswith(function)), default=0)
    parts = {part: sum(map(of, functions)) / 1e6 for part, functions in COSTS.items()}
    return sorted(parts.items(), key=lambda item: -item[1]), total / 1e6


def table(head, rows):
    return "\n".join(["| " + " | ".join(row) + " |" for row in (head, ["---"] * len(head), *rows)]) + "\n"


def time_table(figures, counts, what):
    rows = [[name] + [f"{figures[name, count][0]:.0f} ms" if (name, count) in figures else "" for count in counts]
            for name in SERIES if any((name, count) in figures for count in counts)]
    return table([what] + [f"{count:,}" for count in counts], rows)


def plot(name, figures, counts, title, axis, logarithmic):
    series = {s: [(count, figures[s, count][0]) for count in counts if (s, count) in figures] for s in SERIES}
    path = SOURCE / f"docs/pictures/performance-{name}.svg"
    path.write_text(line_plot({s: points for s, points in series.items() if points}, title, axis, "ms", logarithmic), encoding="utf-8")
    return f"![{title}](pictures/{path.name})\n"


def judged(value, goal):
    return [f"{value:.2f}", "" if goal is None else f"{goal:g}", "" if goal is None else "missed" if value > goal else "met"]


def machine():
    def first(path, pattern):
        found = re.search(pattern, Path(path).read_text(encoding="utf-8"), re.MULTILINE)
        return found[1] if found else "unknown"

    def said(*command):
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout.strip()
    commit = said("git", "-C", SOURCE, "rev-parse", "--short", "HEAD")
    system = first("/etc/os-release", '^PRETTY_NAME="(.*)"')
    processor = first("/proc/cpuinfo", r"^model name\s*: (.*)")
    return f"Commit {commit}, {system}, Qt {said('qmake6', '-query', 'QT_VERSION')}, Linux {platform.release()}, {processor}."


def main():
    build = Path(sys.argv[1] if len(sys.argv) > 1 else SOURCE / "build/release").resolve()
    repetitions = int(sys.argv[2]) if len(sys.argv) > 2 else 11
    peers = (startup.QT, startup.GTK, startup.LIBCUPS)
    figures = startup.measure(build, (startup.FAMILY, *CONSTRAINTS), repetitions, peers)
    for count in CONSTRAINTS:  # the bare dialog opens no PPD
        figures[startup.BARE, count] = figures[startup.BARE, startup.FAMILY]
    queues = queue_figures(build, max(3, repetitions // 2))
    parts, total = costs(build)
    later = list(after_start.figures(build))

    rows = [[name, f"{figures[name, startup.FAMILY][0]:.1f} ms", f"{figures[name, startup.FAMILY][1] / 1024:.1f} MB"]
            for name in (startup.OURS, startup.OURS_GENERAL, *SERIES[1:], startup.BARE_CUPS) if (name, startup.FAMILY) in figures]
    text = f"""# Performance

This page and its plots are written by `bench/report.py`. {machine()}
All times are medians of programs that ran alternately, on a private Xvfb and print server; those with 1,000 queues and more are of
single runs.

## The start

From the start of the process until the printer's options are painted, with a PPD of the family, and the memory at that time. The
printer is named on the command line. kelmar-print opens on the page "Print Mode", unless another page is named. Groups of options below
the visible part of a page, and the list of printers, are created after that time.

{table(["Program", "Time", "Resident memory"], rows)}
The goals compare what each dialog adds to a bare dialog: (ours − bare) / (Qt's − bare).

{table(["Ratio", "Measured", "Goal", ""], [[what, f"{value:.3f}", f"{goal:g}", "missed" if value > goal else "met"]
                                            for what, value, goal in startup.goals(figures)])}
### With constraints

200 options of 20 choices, by the number of constraints between them.

{plot("constraints", figures, CONSTRAINTS, "Start by the number of constraints", "constraints", False)}
{time_table(figures, CONSTRAINTS, "Constraints")}
### With queues

A PPD of the family, by the number of queues of the print server. A program without a figure took more than {START_TIMEOUT} seconds.

{plot("queues", queues, QUEUES, "Start by the number of queues", "queues", True)}
{time_table(queues, QUEUES, "Queues")}
### The largest costs

The main thread executes {total:.0f} million instructions until the program ends, as soon as the options are painted. Fonts are
also included in the parts that load them. The three largest parts are
{", ".join(f"{part} ({cost:.0f})" for part, cost in parts[:3])}.

{table(["Part", "Million instructions"], [[part, f"{cost:.1f}"] for part, cost in parts])}
## After the start

{table(["", "Measured", "Goal", ""], [[f"{what}, {unit}"] + judged(value, goal) for what, value, unit, goal in later])}"""
    (SOURCE / "docs/performance.md").write_text(text, encoding="utf-8")
    print(text)
    return int(any(value > goal for _, value, goal in startup.goals(figures))
               or any(goal is not None and value > goal for _, value, _, goal in later))


if __name__ == "__main__":
    sys.exit(main())
