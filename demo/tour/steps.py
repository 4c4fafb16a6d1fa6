# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""The list of the steps of the tour, and actions that several steps share."""

import sys

from session import wait

CUPS, DOCUMENT, PICTURES = sys.argv[1:4]
STEPS = []  # (name, function, program): the program is opened before the step, or is None


def step(name, program=None):
    """A decorator that adds a function as a step. The function takes the running program and returns a description of the
    result. `program` starts the program of this and the next steps; the previous one is closed first."""
    def add(function):
        STEPS.append((name, function, program))
        return function
    return add


def shows(d, label, value):
    wait("“%s” in the box “%s”" % (value, label), lambda: d.box(label).name == value)


def go_to(d, page):
    d.click(d.get("page tab", page))
    wait("the page “%s”" % page, lambda: d.now("label", page))


def find(d, name):
    """Searches a setting, which may be outside the visible part of its page, and waits until its control has the focus."""
    d.keys("ctrl+f")
    d.focus_on("Find a setting")
    d.type(name)
    d.get("list", "Settings found")
    d.keys("Return")
    return d.focus_on(name)


def is_on(d, name, on):
    wait("%s to be %s" % (name, "on" if on else "off"), lambda: d.has(d.get("check box", name), "CHECKED") == on)


def open_printers(d):
    d.reach("Search printers", lambda: d.click(d.box("Printer:")))


def choose_printer(d, name):
    open_printers(d)
    d.type(name)
    d.keys("Return")
    shows(d, "Printer:", name)
