#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Compares requested settings with the data that reached the printer: asked_arrived.py BUILD_FOLDER [WORD...]

Documents of several types are printed with several options on several kinds of queues, through the real filters of
this system, with the program and, for comparison, with lp. Prints a row for each combination: the request, the
result, and differences of lp. With WORDs, runs only rows that contain one of them. Exit code 1 if a requested
setting did not arrive, 77 if required programs are not installed.

The expected values of a case are NAME=VALUE with these names:
  pages, size    of the filtered data; size in points, of every page
  text           of each page, from its top left, with "/" between pages; of a mirrored page, from its bottom right
  scale          of a box that is 200 points wide in the document, on the first page
  turned=yes     the box, higher than wide in the document, is rotated on the first page
  copies         the number of copies of each page, made by the printer or contained in the data
  whole=yes      the data is identical to the document
  *NAME          a feature of the printer that the data sets up
  NAME           an option as received by filters and backend; empty if there is none
  exit           the exit code of the program; if it is not 0, nothing may be printed
  warned=yes     the program has announced that the password is sent without encryption
"""
import concurrent.futures
import gzip
import json
import os
import pathlib
import pty
import random
import re
import select
import shlex
import shutil
import signal
import socket
import ssl
import subprocess
import sys
import tempfile
import time

build = pathlib.Path(sys.argv[1]).resolve()
source = pathlib.Path(__file__).resolve().parents[2]
script = source / "scripts/lib/private-cupsd.sh"
program = build / "bin/kelmar-print"
A4, LETTER, A5 = "size=595x842", "size=612x792", "size=420x595"

# Queue, document, arguments of the program, expected values, and arguments of lp if they differ. The program's arguments may
# begin with environment variables.
LOCKED = "KELMAR_PRINT_POLICY=locks.json "
CASES = [
    # the family's own PPD
    ("office", "report.pdf", "", f"pages=2 {A4} copies=1 *Duplex=None"),
    ("office", "report.ps", "", f"pages=2 {A4} copies=1"),
    ("office", "note.txt", "", f"pages=1 {A4}"),
    ("office", "picture.png", "", f"pages=1 {A4}"),
    ("office", "picture.bmp", "", f"pages=1 {A4}"),
    ("office", "report.ps.gz", "", f"pages=2 {A4}"),
    ("office", "report.pdf.gz", "", f"pages=2 {A4}"),
    ("office", "report.pdf", "-n 3 --set collate=true", "pages=2 copies=3 *Collate=True", "-n 3 -o Collate=True"),
    ("office", "report.pdf", "-n 3 --set collate=false", "pages=2 copies=3 *Collate=False", "-n 3 -o Collate=False"),
    ("office", "report.ps", "-n 2 --set collate=true", "pages=2 copies=2 *Collate=True", "-n 2 -o Collate=True"),
    ("office", "note.txt", "-n 2 --set collate=false", "pages=1 copies=2 *Collate=False", "-n 2 -o Collate=False"),
    ("office", "five.pdf", "-P 2-3", f"pages=2 {A4} page-ranges=2-3"),
    ("office", "five.pdf", "-P 1,4-", "pages=3"),
    ("office", "five.ps", "-P 5", "pages=1"),
    ("office", "five.pdf", "--set Duplex=DuplexNoTumble", "pages=5 *Duplex=DuplexNoTumble"),
    ("office", "long.txt", "--set Duplex=DuplexTumble", "pages=3 *Duplex=DuplexTumble"),
    ("office", "five.pdf", "-o sides=two-sided-short-edge", "pages=5 *Duplex=DuplexTumble"),
    ("office", "report.pdf", "--set PrintMode=Private --set privatePassword=12340",
     "*PrintMode=Private *DINDigit1=1 *DINDigit4=4 *DINDigit5=0 DINDigit5=0",
     "-o PrintMode=Private -o DINDigit1=1 -o DINDigit2=2 -o DINDigit3=3 -o DINDigit4=4 -o DINDigit5=0"),
    ("office", "report.ps", "--set DeptCode=True --set departmentCode=01230", "*DeptCode=True *DCDigit1=0 *DCDigit4=3",
     "-o DeptCode=True -o DCDigit1=0 -o DCDigit2=1 -o DCDigit3=2 -o DCDigit4=3 -o DCDigit5=0"),
    ("office", "report.pdf", "--set MediaType=Thick1 --set InputSlot=Bypass", "*MediaType=Thick1 *InputSlot=Bypass"),
    ("office", "report.pdf", "--set PageSize=A5", f"pages=2 {A5}"),
    ("office", "note.txt", "-o media=Letter", f"pages=1 {LETTER}"),
    ("office", "picture.png", "--set ColorType=Mono", "pages=1 *ColorType=Mono"),
    # page layout
    ("office", "five.pdf", "-o number-up=4", f"pages=2 {A4} text=1234/5 number-up=4"),
    ("office", "five.pdf", "-o number-up=4 -o number-up-layout=btrl", f"pages=2 {A4} text=4231/5"),
    ("office", "five.pdf", "--set number-up=9 --set number-up-layout=rltb", "pages=1 text=32154",
     "-o number-up=9 -o number-up-layout=rltb"),
    ("office", "five.ps", "-o number-up=9", f"pages=1 {A4} text=12345"),
    ("office", "five.pdf", "-o page-set=odd", "pages=3 text=1/3/5"),
    ("office", "five.ps", "-o page-set=even", "pages=2 text=2/4"),
    ("office", "five.pdf", "-o outputorder=reverse", "pages=5 text=5/4/3/2/1"),
    ("office", "five.ps", "-o outputorder=reverse", "pages=5 text=5/4/3/2/1"),
    ("office", "five.pdf", "-P 1-2 --set outputorder=reverse --set number-up=4", "pages=2 text=5/1234",
     "-P 1-2 -o outputorder=reverse -o number-up=4"),
    ("office", "box.pdf", "", f"pages=1 {A4} scale=1.0 turned=no"),
    ("office", "box.pdf", "-o print-scaling=none", f"pages=1 {A4} scale=1.0"),
    ("office", "box.pdf", "-o print-scaling=fit", f"pages=1 {A4} scale=1.4"),
    ("office", "box.ps", "-o print-scaling=fit", f"pages=1 {A4} scale=1.4"),
    ("office", "large.pdf", "-o print-scaling=none", f"pages=1 {A4} scale=1.0"),
    ("office", "large.pdf", "-o print-scaling=fit", f"pages=1 {A4} scale=0.7"),
    ("office", "box.pdf", "-o natural-scaling=50", f"pages=1 {A4} scale=0.5 natural-scaling="),
    ("office", "box.pdf", "--set natural-scaling=50 -o print-scaling=fit", f"pages=1 {A4} scale=0.7 natural-scaling=",
     "-o natural-scaling=50 -o print-scaling=fit"),
    ("office", "box.ps", "-o natural-scaling=150", f"pages=1 {A4} scale=1.5 natural-scaling="),
    ("office", "picture.png", "-o natural-scaling=50 -o orientation-requested=4", "pages=1 turned=yes natural-scaling="),
    ("office", "picture.png", "", "pages=1 scale=2.9"),
    ("scaled", "picture.png", "", "pages=1 scale=2.0"),
    ("scaled", "picture.png", "-o natural-scaling=100", "pages=1 scale=2.9"),
    ("scaled", "box.pdf", "-o natural-scaling=100", "pages=1 scale=1.0"),
    ("office/raw", "report.pdf", "-o natural-scaling=50", "exit=2"),
    ("office", "box.pdf", "-o natural-scaling=500", "exit=2"),
    ("raw", "report.pdf", "-o natural-scaling=50", "exit=2"),
    ("office", "box.pdf", "-o page-border=single -o number-up=4", "pages=1 scale=1.5"),
    ("office", "five.pdf", "-o number-up=4 -o mirror=true", f"pages=2 {A4} text=3412/5 mirror="),
    ("office", "five.ps", "--set number-up=4 --set mirror=true", f"pages=2 {A4} text=3412/5"),
    ("office", "five.pdf", "-o booklet=true", f"pages=4 {A4} text=1/2/3/45 *Duplex=DuplexTumble"),
    ("office", "five.ps", "--set booklet=true", "exit=2"),
    ("office", "long.txt", "-o orientation-requested=4", "pages=4"),
    ("office", "picture.png", "-o orientation-requested=4", "pages=1 turned=yes"),
    ("office", "five.pdf", "-o fit-to-page -o outputorder=reverse --set PageSize=A5", f"pages=5 {A5}"),
    ("office", "five.pdf", "-o Copies=3", "pages=5 copies=3", "-n 3"),
    ("office", "five.pdf", "-o PageRegion=A5", f"pages=5 {A5}", "-o PageSize=A5"),
    ("office", "five.pdf", "-o media=A5,Tray2", f"pages=5 {A5} *InputSlot=Tray2"),
    ("office", "five.pdf", "-o media-col={media-size-name=iso_a5_148x210mm}", f"pages=5 {A5}"),
    ("office", "five.pdf", "-o outputorder=reverse -o sides=two-sided-long-edge", "pages=6 text=/5/4/3/2/1"),
    # documents that are refused
    ("office", "report.pdf", "--set PrintMode=Private", "exit=2", "-o PrintMode=Private"),
    ("office", "report.pdf", "--set PrintMode=Private -o DINDigit1=1", "exit=2", "-o PrintMode=Private"),
    ("office", "report.pdf", "--set PrintMode=Private --allow-no-password", "pages=2 *PrintMode=Private",
     "-o PrintMode=Private"),
    ("office", "report.pdf", "-o DeptCode", "exit=2"),
    ("office/Nowhere", "report.pdf", "", "exit=2"),
    ("office", "five.pdf", "-P 9-12", "exit=2"),
    ("office", "five.ps", "-P 9-12", "exit=2"),
    ("office", "box.pdf", "-o page-set=even", "exit=2"),
    ("office", "cut.pdf", "", "exit=2"),
    ("office", "secret.pdf", "", "exit=2"),
    ("office", "five.pdf", "-P 9-12 --output out.pdf", "exit=2"),
    ("office", "cut.pdf", "--output out.pdf", "exit=2"),
    # settings locked by the administrator: A4 and two-sided printing
    ("office", "report.pdf", LOCKED, f"pages=2 {A4} *Duplex=DuplexNoTumble", ""),
    ("office", "report.pdf", LOCKED + "-o MEDIA=A4 -o Sides=two-sided-long-edge", f"{A4} *Duplex=DuplexNoTumble", ""),
    *(("office", "report.pdf", LOCKED + words, "exit=1", words) for words in (
        "-o PageSize=A3", "-o MEDIA=A3", "-o Media=A3", "-o PageRegion=A3", "-o media=iso_a3_297x420mm",
        "-o 'media-col={media-size={x-dimension=29700 y-dimension=42000}}'", "-o sides=one-sided", "-o duplex=none",
        "-o raw", "-o document-format=application/vnd.cups-raw", "-o ColorBalanceCyan=2")),
    *((f"office/{preset}", "report.pdf", LOCKED, "exit=1", "") for preset in ("large", "cyan", "raw")),
    # a preset of the user: two-sided, two pages per sheet, monochrome
    ("office/draft", "five.pdf", "", "pages=3 *Duplex=DuplexNoTumble *ColorType=Mono"),
    ("office/draft", "five.pdf", "-o number-up=1 -o sides=one-sided", "pages=5 *Duplex=None number-up=1"),
    ("office/draft", "five.pdf", "--set Duplex=None --set ColorType=Color", "pages=3 *Duplex=None *ColorType=Color"),
    # defaults of the queue: two-sided, A5, two copies
    ("admin", "five.pdf", "", f"pages=5 *Duplex=DuplexNoTumble {A5} copies=2"),
    ("admin", "five.pdf", "--set Duplex=None --set PageSize=A4 -n 1", f"pages=5 *Duplex=None {A4} copies=1"),
    ("admin", "long.txt", "-o sides=one-sided -o media=A4", f"*Duplex=None {A4}"),
    # the same, overridden by a preset as written by this program
    ("admin/single", "five.pdf", "", f"pages=5 *Duplex=None {A5}"),
    # another model, and PPDs of other makers
    ("small", "five.pdf", "-n 2 --set ColorType=Mono -P 1-4", "pages=4 copies=2 *ColorType=Mono"),
    ("generic", "report.pdf", "", f"pages=2 {LETTER}"),
    ("generic", "report.ps.gz", "--set Option1=True --set Duplex=DuplexNoTumble --set PageSize=A4",
     f"pages=2 {A4} *Duplex=DuplexNoTumble"),
    ("generic", "note.txt", "-n 3 -o media=A4", f"pages=3 {A4} copies=1"),
    ("custom", "report.pdf", "--set PageSize=Custom.300x400", "pages=2 size=300x400 PageSize=Custom.300x400"),
    ("custom", "note.txt", "--set StpGamma=Custom.1.5", "*CustomStpGamma=True StpGamma=Custom.1.5"),
    # a driverless printer
    ("everywhere", "report.pdf", "--set Duplex=DuplexNoTumble --set PageSize=A4",
     f"pages=2 {A4} Duplex=DuplexNoTumble PageSize=A4"),
    ("everywhere", "five.pdf", "-o booklet=true", "pages=4 Duplex=DuplexTumble"),
    ("everywhere", "five.pdf", "-n 2 -P 2-3", "pages=2 copies=2 page-ranges=2-3"),
    ("everywhere", "note.txt", "--set ColorModel=Gray -o media=A4", f"pages=1 {A4} ColorModel=Gray"),
    ("everywhere", "report.ps.gz", "-o media=A4", f"pages=2 {A4}"),
    # the same, gray by default
    ("gray", "report.pdf", "", "ColorModel=Gray", "-o ColorModel=Gray"),
    ("gray", "report.pdf", "--set ColorModel=RGB", "ColorModel=RGB print-color-mode=color",
     "-o ColorModel=RGB -o print-color-mode=color"),
    # no PPD
    ("raw", "report.pdf", "-n 2 -o sides=two-sided-long-edge", "whole=yes copies=2 sides=two-sided-long-edge"),
    ("raw", "note.txt", "", "whole=yes"),
    ("raw", "report.pdf.gz", "", f"pages=2 {A4}"),
    # a class
    ("team", "five.pdf", "-n 2 -o sides=two-sided-long-edge -P 1-2", "pages=2 copies=2 *Duplex=DuplexNoTumble"),
    # a queue of another server: through one of this server's, and straight
    ("far", "five.pdf", "-n 2 -o sides=two-sided-long-edge -o page-ranges=2-4",
     "pages=3 copies=2 *Duplex=DuplexNoTumble"),
    ("far", "report.ps.gz", "-o PrintMode=Private -o DINDigit1=7", "pages=2 *PrintMode=Private *DINDigit1=7"),
    ("remote:office", "report.pdf", "--set PrintMode=Private --set privatePassword=54321 --set PageSize=A5",
     f"pages=2 {A5} *PrintMode=Private *DINDigit1=5",
     "-o PrintMode=Private -o DINDigit1=5 -o DINDigit2=4 -o DINDigit3=3 -o DINDigit4=2 -o DINDigit5=1 -o PageSize=A5"),
    ("remote:office", "long.txt", "-n 2 --set Duplex=DuplexTumble", "pages=3 copies=2 *Duplex=DuplexTumble"),
    # the same server over TLS
    ("tls:office", "report.pdf", "-n 2 --set Duplex=DuplexTumble", "pages=2 copies=2 *Duplex=DuplexTumble"),
    # queues that require authentication: by the socket's credentials, and by name and password
    ("members", "report.pdf", "-n 2 --set ColorType=Mono", "pages=2 copies=2 *ColorType=Mono"),
    ("login:office", "five.pdf", "-P 2-3 --set PrintMode=Private --set privatePassword=11111",
     "pages=2 *PrintMode=Private *DINDigit3=1 warned=no",
     "-P 2-3 -o PrintMode=Private -o DINDigit1=1 -o DINDigit2=1 -o DINDigit3=1 -o DINDigit4=1 -o DINDigit5=1"),
    # the same over the network, without TLS and with it
    ("clear:office", "report.pdf", "", "pages=2 warned=yes"),
    ("secure:office", "report.pdf", "", "pages=2 warned=no"),
]


def stop_with(message, code=1):
    print(message, file=sys.stderr)
    sys.exit(code)


def run(*words, **options):
    return subprocess.run(list(map(str, words)), capture_output=True, check=False, **options)


def must(*words, **options):
    done = run(*words, **options)
    if done.returncode:
        stop_with(f"{words}: {done.stdout.decode()}{done.stderr.decode()}", 77 if done.returncode == 77 else 1)
    return done


def make_documents(folder):
    for name in ("report.pdf", "report.ps", "note.txt", "picture.png"):
        shutil.copy(source / "demo" / name, folder)
    for name in ("report.ps", "report.pdf"):
        (folder / f"{name}.gz").write_bytes(gzip.compress((folder / name).read_bytes()))
    pages = "".join(f"%%Page: {n} {n}\n/Courier findfont 40 scalefont setfont 99 400 moveto ({n}) show showpage\n"
                    for n in range(1, 6))
    (folder / "five.ps").write_text("%!PS-Adobe-3.0\n%%Pages: 5\n%%BoundingBox: 0 0 595 842\n%%EndComments\n" + pages +
                                    "%%EOF\n")
    must("gs", "-q", "-o", folder / "five.pdf", "-sDEVICE=pdfwrite", "-sPAPERSIZE=a4", folder / "five.ps")
    for name, paper, size in (("box", "a5", "420 595"), ("large", "a3", "842 1191")):
        (folder / f"{name}.ps").write_text(f"%!PS-Adobe-3.0\n%%Pages: 1\n%%BoundingBox: 0 0 {size}\n%%EndComments\n"
                                           "%%Page: 1 1\n120 120 200 300 rectfill showpage\n%%EOF\n")
        must("gs", "-q", "-o", folder / f"{name}.pdf", "-sDEVICE=pdfwrite", f"-sPAPERSIZE={paper}", folder / f"{name}.ps")
    # Remove the catalog: qpdf 12 repairs a file that only lacks its end.
    (folder / "cut.pdf").write_bytes((folder / "report.pdf").read_bytes()[:1300])
    must("qpdf", "--encrypt", "open", "owner", "256", "--", folder / "report.pdf", folder / "secret.pdf")
    (folder / "long.txt").write_text("".join(f"line {n}\n" for n in range(150)))
    row = b"\x00\x80\xff" * 40
    (folder / "picture.bmp").write_bytes(
        b"BM" + (54 + 40 * len(row)).to_bytes(4, "little") + bytes(4) + (54).to_bytes(4, "little") +
        b"".join(v.to_bytes(4, "little") for v in (40, 40, 40, 1 | 24 << 16, 0, 40 * len(row), 0, 0, 0, 0)) + row * 40)


def free_port():
    """A free port below the range for clients, which could take a port between this check and its use."""
    while True:
        port = random.randrange(10000, 30000)
        if not answers(socket.AF_INET, ("localhost", port)):
            return port


def answers(family, address):
    with socket.socket(family) as s:
        return s.connect_ex(address) == 0


class Setup:
    """Two servers with their queues and helpers, in a folder; stopped by `stop`."""

    def __init__(self, folder):
        self.folder = folder
        self.children = []
        self.servers = [folder / "near", folder / "away"]
        self.socket = self.servers[0] / "cups.sock"
        self.port, self.clear_port, self.secure_port = free_port(), free_port(), free_port()

    def start(self):
        near, away = self.servers
        must("bash", script, "start", near)
        must("bash", script, "start", away, env=dict(os.environ, KELMAR_CUPS_LISTEN=f"localhost:{self.port}"))
        backend = near / "bin/backend/ipp"  # the real backend, which contacts the other server
        backend.unlink()
        backend.symlink_to("/usr/lib/cups/backend/ipp")
        ppds = self.folder / "ppds"
        must("ppdc", "-d", ppds, "/usr/share/cups/drv/sample.drv")
        family = build / "ppds/kelm880.ppd"
        for name, ppd in [("office", family), ("admin", family), ("scaled", family), ("members", family), ("generic", ppds / "generic.ppd"),
                          ("small", build / "ppds/kelo110.ppd"), ("raw", "-"),
                          ("custom", source / "tests/host/custom_values.ppd")]:
            must("bash", script, "add-queue", near, name, ppd, "capture:/")
        must("bash", script, "add-queue", away, "office", family, "capture:/")
        must("bash", script, "add-queue", near, "far", "-",
             f"ipp://localhost:{self.port}/printers/office?waitjob=false")
        defaults = ("sides-default=two-sided-long-edge", "media-default=A5", "copies-default=2")
        self.lpadmin("-p", "admin", *(word for default in defaults for word in ("-o", default)))
        self.lpadmin("-p", "scaled", "-o", "natural-scaling-default=70")
        self.lpadmin("-p", "members", "-o", "printer-op-policy=kelmar-dialog")
        self.lpadmin("-p", "office", "-c", "team")
        must("cupsenable", "-h", self.socket, "team")
        must("cupsaccept", "-h", self.socket, "team")
        self.describe_everywhere()
        (self.folder / ".cups").mkdir()
        (self.folder / ".cups/lpoptions").write_text(
            "Dest office/draft sides=two-sided-long-edge number-up=2 ColorType=Mono\n"
            "Dest office/large MEDIA=A3\nDest office/cyan ColorBalanceCyan=2\nDest office/raw raw=true\n"
            "Dest admin/single Duplex=None sides=one-sided\n")
        (self.folder / "locks.json").write_text(json.dumps({"rules": [
            {"locked": {"PageSize": "A4", "Duplex": "DuplexNoTumble"}, "lockedPanels": ["color-settings-2"]}]}))
        login = ["python3", source / "tests/integration/faulty_proxy.py"]
        self.child([*login, self.folder / "login", self.socket, "login"],
                   lambda: answers(socket.AF_UNIX, str(self.folder / "login")))
        for port, *files in ((self.clear_port,), (self.secure_port, *self.certificate())):
            self.child([*login, ":".join(map(str, (port, *files))), self.socket, "login"],
                       lambda port=port: answers(socket.AF_INET, ("localhost", port)))

    def certificate(self):
        """Paths of the certificate and the key of the server that listens on the network, which creates them for the first
        client."""
        context = ssl.create_default_context()
        context.check_hostname, context.verify_mode = False, ssl.CERT_NONE
        with socket.create_connection(("localhost", self.port)) as plain, context.wrap_socket(plain):
            pass
        return [next((self.servers[1] / "etc/ssl").glob(f"*.{kind}")) for kind in ("crt", "key")]

    def child(self, words, is_ready, **environment):
        log = open(self.folder / "log", "ab")
        child = subprocess.Popen(list(map(str, words)), stdout=log, stderr=log, env=dict(os.environ, **environment))
        self.children.append(child)
        for _ in range(200):
            if is_ready():
                return
            if child.poll() is not None:
                break
            time.sleep(0.05)
        stop_with(f"{words}: " + (self.folder / "log").read_text())

    def lpadmin(self, *words):
        must("lpadmin", "-h", self.socket, *words)

    def describe_everywhere(self):
        """Creates a queue whose PPD is generated from the attributes of a printer; the printer is stopped before the first
        job."""
        bus = self.folder / "bus"
        self.child(["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={bus}"],
                   lambda: answers(socket.AF_UNIX, str(bus)))
        port = free_port()
        self.child(["ippeveprinter", "-2", "-r", "off", "-n", "localhost", "-p", port, "-d", self.folder, "-s", "10,10",
                    "-f", "application/pdf,image/urf,image/pwg-raster", "-c", "/bin/true", "Everywhere"],
                   lambda: answers(socket.AF_INET, ("localhost", port)),
                   DBUS_SYSTEM_BUS_ADDRESS=f"unix:path={bus}")
        self.lpadmin("-p", "everywhere", "-E", "-v", f"ipp://localhost:{port}/ipp/print", "-m", "everywhere")
        self.lpadmin("-p", "everywhere", "-v", "capture:/")
        self.lpadmin("-p", "gray", "-E", "-v", "capture:/", "-P", self.servers[0] / "etc/ppd/everywhere.ppd",
                     "-o", "print-color-mode-default=monochrome")

    def stop(self):
        for child in self.children:
            child.terminate()
            child.wait()
        for server in self.servers:
            run("bash", script, "stop", server)

    def address(self, queue):
        far = f"localhost:{self.port}"
        # 0.0.0.0 reaches this machine, but unlike localhost counts as an address of the network.
        return {"remote": far, "tls": far, "login": self.folder / "login", "clear": f"0.0.0.0:{self.clear_port}",
                "secure": f"0.0.0.0:{self.secure_port}"}.get(queue.split(":")[0], self.socket)


def on_terminal(words, environment, results):
    """Runs a program that asks for name and password, with its output in a file; returns the output."""
    pid, terminal = pty.fork()
    if pid == 0:
        os.dup2(os.open(results, os.O_WRONLY | os.O_CREAT, 0o600), 1)
        os.execvpe(words[0], words, environment)
    said, answered = b"", 0
    try:
        while select.select([terminal], [], [], 20)[0] and (part := os.read(terminal, 4096)):
            said += part
            question = re.search(rb"(User name|Password)[^\n]*[:?] $", said[answered:])
            if question:
                answered = len(said)
                os.write(terminal, b"anna\n" if question[1] == b"User name" else b"secret\n")
    except OSError:  # the terminal's other end is closed
        pass
    else:
        os.kill(pid, signal.SIGKILL)  # nothing for 20 seconds
    os.close(terminal)
    code = os.waitstatus_to_exitcode(os.waitpid(pid, 0)[1])
    return code, results.read_text() + said.decode(errors="replace")


def lp_words(words):
    words = shlex.split(words)
    return ["-o" if word == "--set" else word for word in words]


class Job:
    """One job, found by its title among the jobs that the servers have captured."""

    def __init__(self, setup, title, queue, path, words):
        self.setup, self.title, self.path = setup, title, path
        self.variables = dict(word.split("=", 1) for word in words if re.match("KELMAR_[A-Z_]+=", word))
        words = [word for word in words if not re.match("KELMAR_[A-Z_]+=", word)]
        self.words = [*map(str, words), "-h", str(setup.address(queue)), "-d", queue.split(":")[-1], "-t", title,
                      str(path)]
        self.needs_login = queue.startswith(("login:", "clear:", "secure:"))
        if queue.startswith(("tls:", "secure:")):
            self.variables["CUPS_ENCRYPTION"] = "Required" if queue.startswith("tls:") else "Always"
        self.was_sent = True
        self.problem = ""
        self.facts = {}

    def send(self, command):
        environment = dict(os.environ, HOME=str(self.setup.folder),
                           CUPS_SERVERROOT=str(self.setup.folder / ".cups"), QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8",
                           LANGUAGE="en", CUPS_SERVER=str(self.setup.socket), **self.variables)
        if command[0] == "lp":  # expects the server first
            at = self.words.index("-h")
            command = [*command, *self.words[at:at + 2]]
            del self.words[at:at + 2]
        words = [*map(str, command), *self.words]
        if self.needs_login:
            code, said = on_terminal(words, environment, self.setup.folder / f"{self.title}.json")
            self.facts["warned"] = "yes" if "without encryption" in said else "no"
        else:
            done = run(*words, env=environment, stdin=subprocess.DEVNULL, cwd=self.setup.folder)
            code, said = done.returncode, done.stdout.decode() + done.stderr.decode()
        self.facts["exit"] = str(code)
        if code:
            self.was_sent = False
            self.problem = said.strip() or f"exit code {code}"
        elif "--json" in words and (answer := re.search(r"^\{.*", said, re.S | re.M)):
            differences = json.JSONDecoder().raw_decode(answer[0])[0]["job"]["differences"]
            self.problem = "; ".join(differences)

    def captured(self):
        for server in self.setup.servers:
            for path in (server / "jobs").glob("[0-9]*.args"):
                arguments = path.read_bytes().decode(errors="replace").split("\0")
                if arguments[2] == self.title:
                    return path.with_suffix(".data"), arguments
        return None

    def look(self):
        """Waits for the job and examines it."""
        for _ in range(600):
            found = self.captured()
            if found or not self.was_sent:
                break
            time.sleep(0.05)
        if not found:
            self.problem = self.problem or "nothing arrived"
            return
        data, arguments = found
        content = data.read_bytes()
        for word in shlex.split(arguments[4]):
            name, _, value = word.partition("=")
            self.facts[name] = value
        for name, value in re.findall(rb"%%BeginFeature: \*(\S+) (\S+)", content):
            self.facts["*" + name.decode()] = value.decode()
        self.facts["copies"] = arguments[3]
        if content == self.path.read_bytes():
            self.facts["whole"] = "yes"
        else:
            self.measure_pages(data, content)

    def measure_pages(self, data, content):
        pdf = data
        if b"%!PS" in content[:4096]:
            self.facts["copies"] = (re.findall(rb"NumCopies (\d+)", content) or [b"1"])[-1].decode()
            start = content.index(b"%!PS")
            end = content.rfind(b"\x1b%-12345X")
            pdf = self.setup.folder / f"{self.title}.pdf"
            interpreted = run("gs", "-q", "-dNOSAFER", "-dBATCH", "-dNOPAUSE", "-sDEVICE=pdfwrite", f"-sOutputFile={pdf}",
                              "-", input=content[start:end if end > start else None])
            if interpreted.returncode:
                self.problem = self.problem or "the data is no PostScript: " + interpreted.stdout.decode()[:200]
        said = run("pdfinfo", "-l", "-1", pdf).stdout.decode()
        count = re.search(r"^Pages:\s+(\d+)", said, re.M)
        self.facts["pages"] = count[1] if count else "?"
        sizes = {f"{float(w):.0f}x{float(h):.0f}" for w, h in
                 re.findall(r"^Page +\d+ size:\s+([\d.]+) x ([\d.]+)", said, re.M)}
        self.facts["size"] = " and ".join(sorted(sizes)) or "?"
        sheets = run("pdftotext", "-layout", pdf, "-").stdout.decode().split("\f")[:-1]
        self.facts["text"] = "/".join("".join(sheet.split()) for sheet in sheets)
        box = run("gs", "-q", "-dBATCH", "-dNOPAUSE", "-sDEVICE=bbox", "-dLastPage=1", pdf).stderr
        if corners := re.search(rb"^%%HiRes\S+ ([\d.]+) ([\d.]+) ([\d.]+) ([\d.]+)", box, re.M):
            left, bottom, right, top = map(float, corners.groups())
            self.facts["scale"] = f"{min(right - left, top - bottom) / 200:.1f}"
            self.facts["turned"] = "yes" if right - left > top - bottom else "no"


def main():
    for tool in ("cupsd", "lp", "ppdc", "gs", "qpdf", "pdfinfo", "ippeveprinter", "dbus-daemon"):
        if not shutil.which(tool, path=os.environ["PATH"] + ":/usr/sbin"):
            stop_with(f"{tool} is not installed", 77)
    os.environ["PATH"] += ":/usr/sbin"
    with tempfile.TemporaryDirectory(prefix="kelmar-") as name:
        setup = Setup(pathlib.Path(name))
        setup.folder.chmod(0o755)
        try:
            make_documents(setup.folder)
            setup.start()
            return compare(setup)
        finally:
            setup.stop()


def compare(setup):
    cases = [(number, *case) for number, case in enumerate(CASES, 1)
             if not sys.argv[2:] or any(word in " ".join(case) for word in sys.argv[2:])]

    def work(case):
        number, queue, document, words, _, *others = case
        path = setup.folder / document
        ours = Job(setup, f"{number:02}-program", queue, path, shlex.split(words))
        ours.send([program, "--batch", "--json"])
        theirs = Job(setup, f"{number:02}-lp", queue, path, lp_words(others[0] if others else words))
        ours.look()
        if ours.needs_login or "exit=" in case[4]:
            theirs.problem = "not compared"
        else:
            theirs.send(["lp"])
            theirs.look()
        return ours, theirs

    wrong = 0
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        for case, (ours, theirs) in zip(cases, pool.map(work, cases)):
            number, queue, document, words, wanted, *_ = case
            wants = dict(want.split("=", 1) for want in wanted.split())
            if wants.get("exit") == ours.facts["exit"] and not ours.captured():
                ours.problem = ""
            missing = [f"{name}={ours.facts.get(name, '(none)')} instead of {value}" for name, value in wants.items()
                       if ours.facts.get(name, "") != value]
            lp = [f"{name}={theirs.facts.get(name, '(none)')}" for name, value in wants.items()
                  if theirs.facts.get(name, "") != value]
            if theirs.problem:
                lp = [] if theirs.problem == "not compared" else lp
                lp.insert(0, " ".join(theirs.problem.split()))
            fault = "; ".join(([ours.problem] if ours.problem else []) + missing)
            wrong += bool(fault)
            print(f"{number:2} | {queue} | {document} | {words or '-'} | {wanted} | "
                  f"{'NOT ARRIVED: ' + fault if fault else 'arrived'} | lp: {', '.join(lp) or 'the same'}", flush=True)
    print(f"{len(cases)} combinations, {wrong} of which did not arrive as asked")
    return 1 if wrong or not cases else 0


sys.exit(main())
