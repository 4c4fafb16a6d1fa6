#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""A tour of the dialog: works kelmar-print on a display of its own as a user does, looks at what came of each step, and
keeps a picture of it. Fails at the first step that did not do what it should.

Usage: tour.py CUPS DOCUMENT PICTURES (scripts/demo --tour starts it, as a user with a home of its own)
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
            said = function(program)
        except Failed:
            print("%02d %s FAILED; see %s" % (number, name, file))
            raise
        finally:
            program.picture(os.path.join(steps.PICTURES, file))
        print("%02d %-17s %s" % (number, name, said), flush=True)
    archive.print_from_application(program)


try:
    with Session() as everything:
        run(everything)
        show_arrival(steps.CUPS)
        office.show_presets()
except Failed as failure:
    sys.exit("tour: %s" % failure)
