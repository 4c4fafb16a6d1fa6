# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""The steps with other printers and programs: the list of printers; the queue "archive" of a printer of another maker,
which accepts a password and an account; and an application that opens the dialog."""

import os
import shutil
import subprocess

from arrival import arguments_of_job
from session import Program, expect, wait
from steps import CUPS, DOCUMENT, choose_printer, go_to, open_printers, shows, step

SETTINGS = "Printer Settings"
# Replaces the desktop's printer settings.
STAND_IN = """#!/bin/sh
exec display -title '%s' -size 300x90 -gravity center -font DejaVu-Sans -background '#eff0f1' \\
    label:'The printer settings of the desktop\\n\\nAdd printers here'
""" % SETTINGS
NAME = "org.freedesktop.impl.portal.desktop.kelmar"
OBJECT = "/org/freedesktop/portal/desktop"
CALL_TIMEOUT = 600 * 1000  # milliseconds
PASSWORD = "4711"
TITLE, NEW_TITLE = "Letter", "Letter to the tenants"


def install_stand_in():
    path = os.path.expanduser("~/bin/system-config-printer")
    os.makedirs(os.path.dirname(path))
    with open(path, "w") as file:
        file.write(STAND_IN)
    os.chmod(path, 0o755)
    os.environ["PATH"] = os.path.dirname(path) + ":" + os.environ["PATH"]


def settings_window():
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^%s$" % SETTINGS], stdout=subprocess.PIPE,
                           stderr=subprocess.DEVNULL, check=False).stdout.split()
    return found[0].decode() if found else None


@step("printers")
def printers(d):
    open_printers(d)
    d.reach("Add Printer…", lambda: d.keys("Tab"))
    return "The list of printers, with “Add Printer…” below it"


@step("add-printer")
def add_printer(d):
    d.keys("space")
    wait("the printer settings", settings_window)
    return "Space: “Add Printer…” opened the desktop’s printer settings (a stand-in)"


@step("settings-closed")
def settings_closed(d):
    subprocess.run(["xdotool", "windowclose", settings_window()], check=True)
    wait("the end of the printer settings", lambda: not settings_window())
    shows(d, "Printer:", "office")
    return "Closed them: the dialog still shows “office”"


@step("other-maker")
def other_maker(d):
    choose_printer(d, "archive")
    return "Chose the printer “archive” of another maker: %s" % d.says("Example Archive")


@step("print-mode")
def print_mode(d):
    go_to(d, "Print Mode")
    d.click(d.get("password text", "Password"))
    d.type(PASSWORD)
    d.keys("Tab")
    d.focus_on("Account")
    d.type("Sales")
    return "Print Mode: typed a password and the account “Sales”. %s" % d.says("The printer keeps a job")


@step("account-arrived")
def account_arrived(d):
    d.keys("ctrl+p")
    said = d.says("Sent to “archive”")
    options = arguments_of_job(CUPS, 2)[4].split()
    expect("the account has not reached the printer", "job-account-id=Sales" in options)
    expect("the password has not reached the printer", "job-password=" + PASSWORD in options)
    return "Ctrl+P: %s. The printer’s backend got job-account-id=Sales and the password" % said


class Application:
    """Prints through the portal as an application does: lets the user choose the settings, then sends the document."""

    INTERFACE = "org.freedesktop.impl.portal.Print"
    answer = None

    def __init__(self):
        from gi.repository import Gio, GLib
        self._gio, self._variant = Gio, GLib.Variant
        self._bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        wait("the service", lambda: self._bus.call_sync(
            "org.freedesktop.DBus", "/", "org.freedesktop.DBus", "NameHasOwner", self._variant("(s)", (NAME,)), None,
            Gio.DBusCallFlags.NONE, -1)[0])

    def choose(self, name):
        request = self._variant("(osssa{sv}a{sv}a{sv})", (
            OBJECT + "/request/tour/1", "", "", "Print", {"output-basename": self._variant("s", name)}, {}, {}))
        self._bus.call(NAME, OBJECT, self.INTERFACE, "PreparePrint", request, None, self._gio.DBusCallFlags.NONE,
                       CALL_TIMEOUT, None, self._answered)

    def _answered(self, bus, result):
        self.answer = bus.call_finish(result).unpack()

    def send(self, path):
        with open(path, "rb") as file:
            documents = self._gio.UnixFDList()
            token = {"token": self._variant("u", self.answer[1]["token"])}
            request = self._variant("(osssha{sv})", (
                OBJECT + "/request/tour/2", "", "", "Print", documents.append(file.fileno()), token))
            self._bus.call_with_unix_fd_list_sync(NAME, OBJECT, self.INTERFACE, "Print", request, None,
                                                  self._gio.DBusCallFlags.NONE, CALL_TIMEOUT, documents)


def open_from_application(session):
    """Starts the service, which the bus starts in a desktop session, and opens the dialog from an application."""
    folder = os.path.dirname(os.path.dirname(shutil.which("kelmar-print")))
    dialog = Program(session, [os.path.join(folder, "libexec", "kelmar-print-service")])
    dialog.application = Application()
    dialog.application.choose(TITLE)
    dialog.follow_child()
    return dialog


@step("application", open_from_application)
def application_opens(d):
    window = d.get("dialog", "Print “%s”" % TITLE)
    return "An application opened the dialog through the print portal: %s" % window.name


@step("title")
def title(d):
    d.scroll_down(d.get("label", "General"))
    d.click(d.get("text", "Title"))
    d.keys("ctrl+a")
    d.type(NEW_TITLE)
    wait("the new title", lambda: d.get("text", "Title").queryText().getText(0, -1) == NEW_TITLE)
    return "At the end of the page, typed the title “%s”" % NEW_TITLE


def print_from_application(d):
    """Accepts the dialog, in which the title was changed, and checks the job that the application then sends."""
    print("== The application’s job")
    d.keys("ctrl+p")
    wait("the settings at the application", lambda: d.application.answer)
    d.application.send(DOCUMENT)
    name = arguments_of_job(CUPS, 3)[2]
    expect("the job is called “%s”" % name, name == NEW_TITLE)
    print("   Ctrl+P: the application sent its document, and the job is called “%s”" % name)
