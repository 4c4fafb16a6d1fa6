#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""A tour of the dialog: operates kelmar-print on a private display as a user does, checks the result of each step, and
saves a screenshot of it. Fails at the first step without the expected result.

Usage: tour.py CUPS DOCUMENT PICTURES (started by scripts/demo --tour, as a user with an empty home folder)
CUPS is the folder of the private print server, whose queue "office" is printed on; DOCUMENT has eight pages."""

import os
import sys

from session import Failed, Session
import steps
import office  # the modules add their steps in this order
import archive
from arrival import show_arrival


def run(session):
    program = None
    archive.install_stand_in()
    os.makedirs(steps.PICTURES, exist_ok=True)
    for number, (name, function, opens) in enumerate(steps.STEPS, 1):
        if opens:
            if program:
                program.end()
            program = opens(session)
        file = "%02d-%s.png" % (number, name)
        try:
            result = function(program)
        except Failed:
            print("%02d %s FAILED; see %s" % (number, name, file))
            raise
        finally:
            program.picture(os.path.join(steps.PICTURES, file))
        print("%02d %-17s %s" % (number, name, result), flush=True)
    archive.print_from_application(program)


try:
    with Session() as everything:
        run(everything)
        show_arrival(steps.CUPS)
        office.show_presets()
except Failed as failure:
    sys.exit("tour: %s" % failure)
