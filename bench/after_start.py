#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Measures the program after its start: the response times of the open dialog (dialog_bench), the time until the first
page of the preview of short, long and large documents, compared with pdftoppm and Evince's thumbnailer, and printing
without a window, compared with lp. Prints each figure with its goal. Exits with 1 if a goal is missed. Usage: bench/after_start.py [BUILDDIR [DIALOGS]]"""
import os
import shutil
import statistics
import subprocess
import sys
import time
import zlib
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from session import DOCUMENT, SOURCE, Session  # noqa: E402

BATCH_GOAL = 1.5  # times lp
ROUNDS = 15
MEGABYTE = 1 << 20


def write_pdf(path, pages, megabytes):
    """A document with text on each page; the first page also shows an image of this size."""
    objects = {}
    kids = " ".join(f"{4 + 2 * page} 0 R" for page in range(pages))
    objects[1] = b"<</Type/Catalog/Pages 2 0 R>>"
    objects[2] = f"<</Type/Pages/Count {pages}/Kids[{kids}]>>".encode()
    objects[3] = b"<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"
    image = 4 + 2 * pages
    for page in range(pages):
        resources = "/Font<</F 3 0 R>>" + (f"/XObject<</I {image} 0 R>>" if megabytes else "")
        objects[4 + 2 * page] = (f"<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]/Resources<<{resources}>>"
                                 f"/Contents {5 + 2 * page} 0 R>>").encode()
        text = f"BT /F 24 Tf 72 700 Td (Page {page + 1}) Tj ET" + (" q 400 0 0 400 72 200 cm /I Do Q" if megabytes and not page else "")
        objects[5 + 2 * page] = f"<</Length {len(text)}>>stream\n{text}\nendstream".encode()
    if megabytes:
        # Rows of noise, stored without compression.
        width, height = 1024, megabytes * 1024 // 3
        row = os.urandom(3 * width)
        packed = zlib.compressobj(0)
        data = b"".join(packed.compress(row) for _ in range(height)) + packed.flush()
        objects[image] = (f"<</Type/XObject/Subtype/Image/Width {width}/Height {height}/ColorSpace/DeviceRGB/BitsPerComponent 8"
                          f"/Filter/FlateDecode/Length {len(data)}>>stream\n").encode() + data + b"\nendstream"
    with path.open("wb") as file:
        file.write(b"%PDF-1.5\n")
        places = []
        for number in sorted(objects):
            places.append(file.tell())
            file.write(b"%d 0 obj\n" % number + objects[number] + b"\nendobj\n")
        start = file.tell()
        file.write(b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1))
        file.writelines(b"%010d 00000 n \n" % place for place in places)
        file.write(b"trailer<</Size %d/Root 1 0 R>>\nstartxref\n%d\n%%%%EOF\n" % (len(objects) + 1, start))


def milliseconds_of(command, environment):
    start = time.monotonic()
    subprocess.run(command, env=environment, check=True, stdout=subprocess.DEVNULL)
    return (time.monotonic() - start) * 1000


def alternately(commands, environment, rounds=ROUNDS):
    """Runs the commands alternately, and returns the median of each in milliseconds. The first round only warms the
    caches."""
    taken = [[milliseconds_of(command, environment) for command in commands] for _ in range(rounds + 1)]
    return [statistics.median(column) for column in zip(*taken[1:])]


def preview_figures(session, build):
    for what, pages, megabytes in (("1 page", 1, 0), ("1,000 pages", 1000, 0), ("200 MB", 1, 200)):
        path = session.folder / "document.pdf"
        write_pdf(path, pages, megabytes)
        rounds = 3 if megabytes else 7
        made = statistics.median(float(subprocess.run([build / "bench/preview_bench", path], env=session.environment, check=True,
                                                      capture_output=True, text=True).stdout) for _ in range(rounds))
        commands = {"pdftoppm": ["pdftoppm", "-f", "1", "-l", "1", "-scale-to", "900", path, session.folder / "page"]}
        if not megabytes:  # Evince leaves out an image of this height
            commands["Evince's thumbnailer"] = ["evince-thumbnailer", "-s", "900", path, session.folder / "page.png"]
        installed = {name: command for name, command in commands.items() if shutil.which(command[0])}
        yield f"first preview page, {what}", made, "ms", None
        for name, taken in zip(installed, alternately(installed.values(), session.environment, rounds)):
            yield f"{name}, same page, not laid out for a job, {what}", taken, "ms", None


def batch_figures(session, build):
    session.add_queue("office", build / "ppds/kelm880.ppd")
    subprocess.run(["cupsdisable", "office"], env=session.environment | {"PATH": os.environ["PATH"] + ":/usr/sbin"}, check=True)
    ours, lp = alternately([[build / "bin/kelmar-print", "--batch", "-d", "office", DOCUMENT], ["lp", "-d", "office", DOCUMENT]],
                           session.environment)
    yield "job sent with --batch", ours, "ms", None
    yield f"job sent with --batch, relative to lp ({lp:.0f} ms)", ours / lp, "times", BATCH_GOAL


def dialog_figures(build, dialogs):
    run = subprocess.run([build / "bench/dialog_bench", dialogs], capture_output=True, text=True)
    if run.returncode not in (0, 1) or not run.stdout:
        raise SystemExit(f"dialog_bench failed: {run.stderr}")
    for line in run.stdout.splitlines():
        what, value, unit, goal = line.split("\t")
        yield what, float(value), unit, float(goal)


def figures(build, dialogs="1000"):
    """Tuples of what is measured, its value, its unit, and its goal or None."""
    yield from dialog_figures(build, dialogs)
    with Session() as session:
        yield from batch_figures(session, build)
        yield from preview_figures(session, build)


def main():
    build = Path(sys.argv[1] if len(sys.argv) > 1 else SOURCE / "build/release").resolve()
    missed = False
    for what, value, unit, goal in figures(build, *sys.argv[2:3]):
        judged = "" if goal is None else f", goal at most {goal:g}: {'MISSED' if value > goal else 'met'}"
        print(f"{what}: {value:.2f} {unit}{judged}", flush=True)
        missed = missed or (goal is not None and value > goal)
    return int(missed)


if __name__ == "__main__":
    sys.exit(main())
