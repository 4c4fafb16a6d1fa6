#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Kills the print server at random times while jobs are being sent, and compares the reported outcomes with the
printed data: kill_server.py BUILD_FOLDER [ROUNDS [SEED [stopped]]]. With "stopped" the server is stopped for a
while instead. Exit code 1 if they differ, 77 without CUPS."""
import collections
import json
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time

build = pathlib.Path(sys.argv[1]).resolve()
source = pathlib.Path(__file__).resolve().parents[2]
script = source / "scripts/lib/private-cupsd.sh"
sizes = [10_000, 300_000, 5_000_000, 40_000_000, 150_000_000]  # bytes


class PrintServer:
    def __init__(self, folder):
        self.folder = folder
        self.socket = folder / "cups.sock"

    def call(self, *words):
        return subprocess.run(["bash", script, *map(str, words)], capture_output=True, text=True)

    def start(self):
        done = self.call("start", self.folder)
        if done.returncode:
            sys.stderr.write(done.stderr)
            sys.exit(done.returncode)

    def signal(self, number):
        os.kill(int((self.folder / "cupsd.pid").read_text()), number)

    def kill(self):
        self.signal(signal.SIGKILL)
        (self.folder / "cupsd.pid").unlink()

    def wait_until_idle(self, outcome="accepted"):
        for tries in range(600):
            if tries == 100 and outcome == "unknown":
                # The server came back too late for the program, and waits for documents that will not arrive.
                subprocess.run(["cancel", "-h", self.socket, "-a", "raw"], check=False)
            said = subprocess.run(["lpstat", "-h", self.socket, "-W", "not-completed", "-o"],
                                  capture_output=True, text=True)
            if said.returncode == 0 and not said.stdout.strip():
                return
            time.sleep(0.1)
        sys.exit("the queue does not become empty:\n" + said.stdout)

    def printed(self, title):
        """Sizes of the documents printed with a title, by job."""
        jobs = collections.defaultdict(list)
        journal = self.folder / "jobs/journal"
        for line in journal.read_text().splitlines() if journal.exists() else []:
            job, size, its_title = line.split(" ", 2)
            if its_title == title:
                jobs[job].append(int(size))
        return jobs


def pdf(content):
    """A PDF file of one page, with an unreferenced stream of this size."""
    objects = [b"<< /Type /Catalog /Pages 2 0 R >>", b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
               b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] >>",
               b"<< /Length %d >>\nstream\n%s\nendstream" % (len(content), content)]
    data, places = b"%PDF-1.4\n", []
    for number, text in enumerate(objects, 1):
        places.append(len(data))
        data += b"%d 0 obj\n%s\nendobj\n" % (number, text)
    table = b"".join(b"%010d 00000 n \n" % place for place in places)
    return data + b"xref\n0 5\n0000000000 65535 f \n%strailer\n<< /Size 5 /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (
        table, len(data))


def document(folder, size):
    path = folder / f"{size}.pdf"
    if not path.exists():
        path.write_bytes(pdf(bytes(32 + i % 90 for i in range(4096)) * (size // 4096 + 1)))
    return path


def start_program(front_end, server, title, files, socket=None):
    environment = dict(os.environ, CUPS_SERVER=str(socket or server.socket), HOME=str(server.folder),
                       QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
    words = ([build / "bin/kelmar-print", "--batch", "--json", "-d", "raw", "-t", title] if front_end == "batch"
             else [build / "tests/window_driver", "raw", title])
    return subprocess.Popen([*words, *files], env=environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                            text=True)


def said(front_end, program):
    out, err = program.communicate(timeout=120)
    if front_end == "window":
        return out.split()[0]
    outcome = json.loads(out)["outcome"]
    if {"accepted": 0, "rejected": 1, "unknown": 5}[outcome] != program.returncode:
        sys.exit(f"exit code {program.returncode} with {out}{err}")
    return outcome


def compared(outcome, jobs, needed):
    """The printed part of a job of this size, and the error in its reported outcome, if any."""
    whole = [job for job, parts in jobs.items() if sum(parts) >= needed]
    fault = ("lost" if outcome == "accepted" and not whole else
             "printed all the same" if outcome == "rejected" and jobs else
             "printed twice" if len(jobs) > 1 else "")
    return "all" if whole else "part" if jobs else "nothing", fault


def main():
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 30
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else random.randrange(10**6)
    effect = sys.argv[4] if len(sys.argv) > 4 else "killed"
    wrong = 0
    tally = collections.Counter()
    with tempfile.TemporaryDirectory(prefix="kelmar-") as name:
        folder = pathlib.Path(name)
        folder.chmod(0o755)
        server = PrintServer(folder)
        server.start()
        server.call("add-queue", folder, "raw", "-", "capture:/")
        chance = random.Random(seed)
        lasting = {}  # duration of jobs in seconds
        for number in range(rounds):
            front_end = ("batch", "window")[number % 2]
            count = chance.choice([1, 3])
            size = chance.choice(sizes)
            files = [document(folder, size)] * count
            title = f"round-{number}"
            if (size, count) not in lasting:
                began = time.monotonic()
                start_program("batch", server, "measured", files).communicate()
                lasting[size, count] = time.monotonic() - began
                server.wait_until_idle()
            program = start_program(front_end, server, title, files)
            moment = chance.uniform(0.05, 1.05) * lasting[size, count]
            time.sleep(moment)
            begin, end = ((server.kill, server.start) if effect == "killed" else
                          (lambda: server.signal(signal.SIGSTOP), lambda: server.signal(signal.SIGCONT)))
            begin()
            pause = chance.choice([0, 1, 3, None])  # None: until the program has exited
            if pause is not None:
                time.sleep(pause)
                end()
            outcome = said(front_end, program)
            if pause is None:
                end()
            server.wait_until_idle(outcome)
            printed, fault = compared(outcome, server.printed(title), count * files[0].stat().st_size)
            wrong += bool(fault)
            tally[outcome] += 1
            print(f"{number:3} {front_end:6} {count} x {size:>9} {effect} after {moment:5.2f} s of "
                  f"{lasting[size, count]:5.2f}, back after {pause} s: {outcome}, {printed} printed {fault}", flush=True)
        server.call("stop", folder)
    print(f"seed {seed}: {rounds} times {effect}, {dict(tally)}, {wrong} told wrongly")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
