#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""Operates the dialog over the accessibility bus like a screen reader: prints a private job after two conflicting
settings and a wrong page range, on a print server that is slow to accept the job. Prints the events of the bus, and
fails if anything was not announced, was announced twice or without a text, or if the preview claimed the focus.

Usage: private_job.py PID_OF_SERVER PROGRAM ARGUMENT...  (on a private X display and session bus)"""

import os
import signal
import subprocess
import sys

import pyatspi
from gi.repository import GLib

PATIENCE = 90  # seconds for the whole
EVENTS = ("object:state-changed:showing", "object:state-changed:focused",
          "object:property-change:accessible-name", "object:property-change:accessible-description")


class Session:
    def __init__(self, server, command):
        self.server = server  # process ID
        self.log = []
        self.notifications = []  # one for each time that one appeared
        self.descriptions = []  # read with the buttons: their own, and the names of notifications around them
        self.is_empty_announced = False
        self.problem = "nothing happened"
        # The expected announcements, and the button pressed or the pages typed after each. The first question was shown
        # before listening started.
        self.steps = [(None, "Keep and Review"), (None, "Range:"), (None, self.type_pages("3-1")),
                      ("“3-1” is not a page", self.type_pages("1-2")), (None, "Print"),
                      ("cannot be used together", "Apply Suggestion"), (None, self.print_slowly),
                      ("Sending the document", self.end_slowness), ("Sent to", lambda: True),
                      ("Job 1: done", self.check_late_reader), (None, "Close")]
        for name in EVENTS:
            pyatspi.Registry.registerEventListener(self.note, name)
        environment = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="1",
                           QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.process = subprocess.Popen(command, env=environment)
        GLib.timeout_add(100, self.proceed)
        GLib.timeout_add_seconds(PATIENCE, self.give_up)

    def note(self, event):
        try:
            role, name = event.source.getRoleName(), event.source.name
        except (GLib.GError, LookupError, RuntimeError):
            return  # no longer exists
        entry = (str(event.type), role, name, event.detail1)
        self.log.append(entry)
        if entry[0] == "object:state-changed:showing" and role == "notification" and event.detail1:
            self.notifications.append(event.source)
            self.is_empty_announced |= not name
        print("%-45s %-14s %d  %s" % (entry[0], role, event.detail1, name.replace("\n", " / ")), flush=True)

    def read(self, button):
        """Notes what a screen reader reads with a button when it gets the focus."""
        self.descriptions.append(button.description)
        around = button.parent
        while around:
            if around.getRole() == pyatspi.ROLE_NOTIFICATION:
                self.descriptions.append(around.name)
            around = around.parent

    def times_announced(self, words):
        """How often a screen reader announces a text: when a notification appears, and with the widgets that it describes."""
        shown = sum(kind == "object:state-changed:showing" and role == "notification" and shown and words in name
                    for kind, role, name, shown in self.log)
        return shown + sum(words in description for description in self.descriptions)

    def proceed(self):
        if self.process.poll() is not None:
            self.problem = None if not self.steps and self.process.returncode == 0 else "the program has ended"
            if any("focused" in kind and role == "list item" and name in ("1", "2") for kind, role, name, _ in self.log):
                self.problem = "the preview has claimed the focus"
            for words in ("Reading the document", "Sending the document", "Sent to", "Job 1: done"):
                if self.times_announced(words) > 1:
                    self.problem = "announced %d times: %s" % (self.times_announced(words), words)
            if self.is_empty_announced:
                self.problem = "a notification without a text was announced"
            pyatspi.Registry.stop()
            return False
        if self.steps:
            words, button = self.steps[0]
            self.problem = "not announced: %s" % words
            if words is None or self.times_announced(words):
                self.problem = "there is no control for %s" % button
                if button() if callable(button) else self.press(button):
                    self.steps.pop(0)
                    if words and self.times_announced(words) > 1:
                        self.problem = "announced %d times: %s" % (self.times_announced(words), words)
                        self.give_up()
                        return False
        return True

    @staticmethod
    def find(roles, name, states):
        for application in pyatspi.Registry.getDesktop(0):
            found = application and pyatspi.findDescendant(
                application, lambda a: a.getRole() in roles and a.name == name and
                all(a.getState().contains(state) for state in states))
            if found:
                return found
        return None

    def press(self, name):
        found = self.find((pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_RADIO_BUTTON), name,
                          (pyatspi.STATE_SHOWING, pyatspi.STATE_ENABLED))
        if not found:
            return False
        self.read(found)
        print("--- pressing %s (%s)" % (name, found.description.replace("\n", " / ")), flush=True)
        actions = found.queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        actions.doAction(names.index("Press" if "Press" in names else "Toggle"))
        return True

    def print_slowly(self):
        os.kill(self.server, signal.SIGSTOP)
        return self.press("Print")

    def end_slowness(self):
        button = self.find((pyatspi.ROLE_PUSH_BUTTON,), "Cancel Printing", (pyatspi.STATE_SHOWING,))
        if button:
            self.read(button)
            os.kill(self.server, signal.SIGCONT)
        return bool(button)

    def type_pages(self, text):
        def act():
            field = self.find((pyatspi.ROLE_TEXT,), "Pages to print", (pyatspi.STATE_SHOWING,))
            if field:
                print("--- typing %s" % text, flush=True)
                field.queryEditableText().setTextContents(text)
            return field is not None
        return act

    def check_late_reader(self):
        """Fails if a screen reader that was busy until now, and reads the current names, would repeat a state or read none."""
        names = []
        for notification in self.notifications:
            try:
                notification.clearCache()
                names.append(notification.name)
            except (GLib.GError, LookupError, RuntimeError):
                names.append("")  # no longer exists
        states = [name for name in names if "Job 1" in name or "the document" in name]
        if len(set(states)) != len(states) or not all(names):
            self.problem = "a late screen reader would read: %s" % names
            self.give_up()
        return True

    def give_up(self):
        os.kill(self.server, signal.SIGCONT)
        self.process.kill()
        pyatspi.Registry.stop()
        return False


session = Session(int(sys.argv[1]), sys.argv[2:])
pyatspi.Registry.start()
if session.problem:
    sys.exit("private_job.py: %s" % session.problem)
