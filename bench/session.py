# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""A private display and print server for the benchmarks, and the start of a program there."""
import os
import select
import signal
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

SOURCE = Path(__file__).resolve().parents[1]
CUPSD = SOURCE / "scripts/lib/private-cupsd.sh"
DOCUMENT = SOURCE / "demo/report.pdf"
START_TIMEOUT = 20  # seconds for a program to start
SERVER_TIMEOUT = 120  # seconds for a server to read all its queues
DEVICE = "socket://127.0.0.42:9100"  # never contacted


class Session:
    """A context manager: an Xvfb and a private cupsd, with `queues` queues without a PPD."""

    def __init__(self, queues=0):
        self.queues = queues

    def __enter__(self):
        self._folder = tempfile.TemporaryDirectory()
        self.folder = Path(self._folder.name)
        self.folder.chmod(0o755)
        for part in ("home", "runtime"):
            (self.folder / part).mkdir(mode=0o700)
        self._start_display()
        self._server = None
        try:
            self._write_queues()
            self._start_server()
        except BaseException:
            self.__exit__()
            raise
        self.environment = dict(
            os.environ, DISPLAY=self._display, QT_QPA_PLATFORM="xcb", GDK_BACKEND="x11", HOME=str(self.folder / "home"),
            XDG_RUNTIME_DIR=str(self.folder / "runtime"), LC_ALL="C.UTF-8", CUPS_SERVER=str(self.folder / "cups/cups.sock"))
        return self

    def __exit__(self, *_):
        if self._server:
            self._server.terminate()
            self._server.wait()
        self._xvfb.terminate()
        self._xvfb.wait()
        self._folder.cleanup()

    def _start_display(self):
        # -noreset: like the server of a desktop, it does not restart when its last client ends. The next program would wait for
        # the restart.
        reading, writing = os.pipe()
        self._xvfb = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as stream:
            self._display = ":" + stream.readline().strip()

    def _write_queues(self):
        (self.folder / "cups/etc").mkdir(parents=True)
        if not self.queues:
            return
        with (self.folder / "cups/etc/printers.conf").open("w", encoding="ascii") as file:
            for number in range(self.queues):
                file.write(f"<Printer q{number}>\nInfo Copier {number}\nLocation Floor {number % 40}\nDeviceURI {DEVICE}\n"
                           "State Idle\nAccepting Yes\n</Printer>\n")

    def _start_server(self):
        self._server = subprocess.Popen([CUPSD, "run", self.folder / "cups"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        until = time.monotonic() + SERVER_TIMEOUT
        while subprocess.run(["lpstat", "-h", self.folder / "cups/cups.sock", "-r"], capture_output=True).stdout != b"scheduler is running\n":
            if self._server.poll() is not None or time.monotonic() > until:
                raise SystemExit("cupsd does not answer")
            time.sleep(0.1)

    def add_queue(self, name, ppd, device=DEVICE):
        subprocess.run([CUPSD, "add-queue", self.folder / "cups", name, ppd, device], check=True, stdout=subprocess.DEVNULL)

    def add_large_queue(self, build, constraints):
        """Adds a queue with 200 options, and returns its name."""
        name = f"large{constraints}"
        path = self.folder / f"{name}.ppd"
        with path.open("wb") as file:
            subprocess.run([build / "bench/large_ppd_file", str(constraints)], stdout=file, check=True)
        self.add_queue(name, path)
        return name

    def launch(self, command):
        """Runs a program and returns the tuple (milliseconds, kilobytes) that it reports. KELMAR_T0_NS contains the time just
        before exec. None if the program takes too long."""
        reading, writing = os.pipe()
        pid = os.fork()
        if pid == 0:
            os.dup2(writing, 1)
            os.dup2(os.open(os.devnull, os.O_WRONLY), 2)
            self.environment["KELMAR_T0_NS"] = str(time.clock_gettime_ns(time.CLOCK_MONOTONIC))
            try:
                os.execve(command[0], command, self.environment)
            finally:
                os._exit(127)
        os.close(writing)
        with os.fdopen(reading) as stream:
            is_late = not select.select([stream], [], [], START_TIMEOUT)[0]
            if is_late:
                os.kill(pid, signal.SIGKILL)
            text = stream.read()
        _, status = os.waitpid(pid, 0)
        if is_late:
            return None
        if status != 0:
            raise SystemExit(f"{command[0]} failed: {text}")
        figures = {line.split("\t")[0]: float(line.split("\t")[1]) for line in text.splitlines() if line.count("\t") == 2}
        return figures["process start to options painted"], figures["resident memory with options"]

    def measure(self, programs, repetitions):
        """Runs the programs alternately, and returns their medians without those of programs that take too long. The first
        round only warms the caches."""
        samples = {name: [] for name in programs}
        for turn in range(repetitions + 1):
            for name in list(samples):
                figures = self.launch(programs[name])
                if figures is None:
                    del samples[name]
                elif turn:
                    samples[name].append(figures)
        return {name: tuple(statistics.median(column) for column in zip(*rows)) for name, rows in samples.items()}
