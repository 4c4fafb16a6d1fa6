#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Makes each request of a submission fail in each way (faulty_proxy.py), and compares the reported outcomes with
the printed data: server_faults.py BUILD_FOLDER [SERVERS]. SERVERS (4) are used in parallel. Exit code 1 if they
differ, 77 without CUPS."""
import collections
import concurrent.futures
import pathlib
import queue
import subprocess
import sys
import tempfile

import kill_server

proxy_script = pathlib.Path(__file__).with_name("faulty_proxy.py")
workers = int(sys.argv[2]) if len(sys.argv) > 2 else 4
size = 300_000  # bytes of a document

# The fault, and the first request of its operation that it affects. The printer is queried when it is opened, and again
# before the job is created.
FAULTS = [(f"{operation}-{effect}", number)
          for operation, numbers in (("ask", (1, 2, 3)), ("create", (1,)), ("send", (1, 2, 3)), ("look", (1, 2)))
          for effect in ("lost", "garbage", "truncated", "dropped") for number in numbers]
FAULTS += [("create-negative", 1), ("create-endless", 1), ("send-forgotten", 1), ("send-vanished", 1),
           ("send-vanished", 3), ("send-stalled", 1), ("send-cut", 1), ("none", 1)]


def run(number, servers, front_end, count, fault, first):
    server = servers.get()
    try:
        socket = server.folder / f"proxy-{number}.sock"
        proxy = subprocess.Popen([sys.executable, proxy_script, socket, server.socket, fault, str(first)],
                                 stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        try:
            proxy.stdout.readline()  # "ready"
            title = f"case-{number}"
            files = [kill_server.document(server.folder, size)] * count
            outcome = kill_server.said(front_end, kill_server.start_program(front_end, server, title, files, socket))
        finally:
            proxy.kill()
            proxy.wait()
        try:
            server.wait_until_idle(outcome)
        except SystemExit:
            return outcome, "something", "left in the queue"
        printed, wrong = kill_server.compared(outcome, server.printed(title), count * files[0].stat().st_size)
        if fault == "none" and outcome != "accepted":
            wrong = "not printed without a fault"
        return outcome, printed, wrong
    finally:
        servers.put(server)


def main():
    tally, wrongs = collections.Counter(), collections.Counter()
    with tempfile.TemporaryDirectory(prefix="kelmar-") as name:
        pathlib.Path(name).chmod(0o755)
        servers = queue.Queue()
        started = []
        for worker in range(workers):
            folder = pathlib.Path(name) / str(worker)
            folder.mkdir()
            server = kill_server.PrintServer(folder)
            server.start()
            started.append(server)
            server.call("add-queue", folder, "raw", "-", "capture:/")
            servers.put(server)
        cases = [(front_end, count, fault, first) for fault, first in FAULTS for front_end in ("batch", "window")
                 for count in ((3,) if first > 1 else (1, 3))]
        with concurrent.futures.ThreadPoolExecutor(workers) as pool:
            results = pool.map(lambda case: run(case[0], servers, *case[1]), enumerate(cases))
            for (front_end, count, fault, first), (outcome, printed, wrong) in zip(cases, results):
                tally[outcome] += 1
                wrongs[wrong] += bool(wrong)
                print(f"{fault:16} {first} {front_end:6} {count} x {size}: {outcome}, {printed} printed {wrong}", flush=True)
        for server in started:
            server.call("stop", server.folder)
    print(f"{len(cases)} faults, {dict(tally)}, {sum(wrongs.values())} told wrongly {dict(+wrongs) or ''}")
    return 1 if +wrongs else 0


sys.exit(main())
