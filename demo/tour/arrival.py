# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Checks what the printer's backend has received."""

import os
import re

from session import expect, wait


def arguments_of_job(cups, job):
    """The command line of the printer's backend for the job: job ID, user, title, copies, options."""
    path = os.path.join(cups, "jobs", "%d.args" % job)
    wait("job %d at the printer's backend" % job, lambda: os.path.exists(path))
    with open(path) as file:
        return file.read().split("\0")


def show_arrival(cups):
    """Prints and checks the options and the number of sides that the printer's backend has received. `cups` is the folder
    of the private print server."""
    options = sorted(arguments_of_job(cups, 1)[4].split())
    print("== What reached the printer's backend")
    for option in options:
        print("   " + option)
    for option in ("number-up=4", "page-border=single", "Duplex=DuplexNoTumble", "TonerSave=True", "MediaType=Plain"):
        expect("%s has not reached the printer" % option, option in options)
    with open(os.path.join(cups, "jobs", "1.data"), "rb") as file:
        sides = len(re.findall(rb"^%%Page: ", file.read(), re.M))
    print("   8 pages of the document on %d sides of %d sheet of paper" % (sides, (sides + 1) // 2))
    expect("%d sides reached the printer, not 2" % sides, sides == 2)
    jobs = sorted(name for name in os.listdir(os.path.join(cups, "jobs")) if name.endswith(".args"))
    expect("the jobs at the backends are %s" % jobs, jobs == ["1.args", "2.args", "3.args"])
