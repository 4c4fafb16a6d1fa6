# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""A private desktop session, and a program that runs in it. The program is operated as by a user, with key and mouse
events of the display; its controls are found through the accessibility bus."""

import ctypes
import os
import signal
import subprocess
import time

TIMEOUT = 15  # seconds
POLL_INTERVAL = 0.05  # seconds
SCREEN = (900, 640)  # pixels


class Failed(Exception):
    """An expected result was not found; the text describes it."""


def expect(what, is_so):
    if not is_so:
        raise Failed(what)


def wait(what, condition):
    """Calls `condition` until its result is true, and returns the result. Raises Failed after TIMEOUT."""
    from gi.repository import GLib
    end = time.monotonic() + TIMEOUT
    while True:
        while GLib.MainContext.default().iteration(False):
            pass  # delivers events of the accessibility bus
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise Failed("timed out waiting for %s" % what)
        time.sleep(POLL_INTERVAL)


def _die_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)  # PR_SET_PDEATHSIG


class Session:
    """A context manager: a display, a session bus and a window manager, which end with it. Sets the environment of this
    process, so that programs that it starts belong to the session."""

    def __init__(self):
        self._processes = []
        self._log = open("session.log", "ab")

    def __enter__(self):
        os.environ["DISPLAY"] = ":" + self._start_server(
            ["Xvfb", "-displayfd", "{}", "-screen", "0", "%dx%dx24" % SCREEN, "-nolisten", "tcp", "-noreset"])
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._start_server(
            ["dbus-daemon", "--session", "--nofork", "--print-address={}"])
        self.start(["xsetroot", "-solid", "#596b7c"]).wait()
        self.start(["openbox"])
        wait("the window manager", lambda: subprocess.run(
            ["xdotool", "get_desktop"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0)
        return self

    def __exit__(self, *_):
        for process in reversed(self._processes):
            process.terminate()
            try:
                process.wait(TIMEOUT)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self._log.close()

    def start(self, command, **options):
        """Starts a process that ends with the session, and writes its output to session.log. `options` are those of
        Popen."""
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=self._log, stderr=self._log,
                                   preexec_fn=_die_with_parent, **options)
        self._processes.append(process)
        return process

    def _start_server(self, command):
        """Starts a server and waits until it is ready. Returns its address, which it writes to the file descriptor that
        replaces {} in the command."""
        reader, writer = os.pipe()
        self.start([word.format(writer) for word in command], pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader) as stream:
            line = stream.readline().strip()
        if not line:
            raise Failed("%s does not start" % command[0])
        return line


class Program:
    """A running program with one main window. Controls are found by their accessible role and name. A combo box is found
    by its label, since its accessible name is its value."""

    def __init__(self, session, command):
        import pyatspi  # not earlier, since it connects to the bus of the session
        self._atspi = pyatspi
        self._focused = []  # names of the controls that got the focus since the last clear()
        pyatspi.Registry.registerEventListener(self._note_focus, "object:state-changed:focused")
        self.process = session.start(command, env=dict(os.environ, QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="1",
                                                       QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1"))
        self.pid = self.process.pid  # of the process with the window

    def follow_child(self):
        """Operates the window of the process that the program has started, instead of its own."""
        self.pid = int(wait("a child of the program", lambda: subprocess.run(
            ["ps", "-o", "pid=", "--ppid", str(self.process.pid)], stdout=subprocess.PIPE).stdout.split())[0])

    def end(self):
        """Closes the window, which shows a sent job, and waits until the program has ended."""
        self.keys("Return")
        wait("the end of the program", lambda: self.process.poll() is not None)
        expect("the program ended with %s" % self.process.returncode, self.process.returncode == 0)

    def _note_focus(self, event):
        from gi.repository import GLib
        try:
            if event.detail1:
                self._focused.append(event.source.name)
        except (GLib.GError, LookupError, RuntimeError):
            pass  # the control no longer exists

    # ---- What the window shows

    def _application(self):
        for application in self._atspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.pid:
                application.set_cache_mask(0)  # cached states may be outdated
                return application
        return None

    def all(self, role=None, within=None):
        """The visible controls with this role, or all, in the order of the window."""
        from gi.repository import GLib
        found = []

        def look(node):
            try:
                if not self.has(node, "SHOWING"):
                    return
                if role in (None, self.role(node)):
                    found.append(node)
                for i in range(node.childCount):
                    child = node.getChildAtIndex(i)
                    if child:
                        look(child)
            except (GLib.GError, LookupError, RuntimeError):
                pass  # the control was removed meanwhile

        top = within or self._application()
        if top:
            look(top)
        elif self.process.poll() is not None:
            raise Failed("the program has ended (%s)" % self.process.returncode)
        return found

    def role(self, control):
        """The role of a control. All buttons are called "button": their role name depends on the versions of Qt and AT-SPI,
        and on whether they have a menu."""
        name = control.getRoleName()
        return "button" if name in ("push button", "push button menu", "button menu") else name

    def has(self, control, state):
        return control.getState().contains(getattr(self._atspi, "STATE_" + state))

    def now(self, role, name, within=None):
        """The first visible control whose name begins with `name`, or None."""
        return next((node for node in self.all(role, within) if node.name.startswith(name)), None)

    def get(self, role, name):
        """Waits for a visible control whose name begins with `name`."""
        return wait("the %s “%s”" % (role, name), lambda: self.now(role, name))

    def box(self, label):
        """Waits for the combo box with this label."""
        def labelled():
            for box in self.all("combo box"):
                for relation in box.getRelationSet():
                    if relation.getRelationType() == self._atspi.RELATION_LABELLED_BY and any(
                            relation.getTarget(i).name == label for i in range(relation.getNTargets())):
                        return box
            return None
        return wait("the box “%s”" % label, labelled)

    def focus_on(self, name):
        """Waits until the control with this name has the focus."""
        return wait("the focus on “%s”" % name, lambda: next(
            (node for node in self.all() if self.has(node, "FOCUSED") and node.name == name), None))

    def reach(self, name, act):
        """Calls `act`, and waits until it has moved the focus to a control whose name begins with `name`. This also works for
        open lists and menus, which are not in the tree of a window."""
        self._focused.clear()
        act()
        wait("the focus on “%s”" % name, lambda: any(focused.startswith(name) for focused in self._focused))

    def texts(self):
        """The texts of all visible labels, including those that screen readers announce."""
        return [node.name for role in ("label", "notification") for node in self.all(role) if node.name]

    def says(self, words):
        """Waits for a label that contains `words`, and returns its text on one line."""
        return wait("the text “%s”" % words,
                    lambda: next((text for text in self.texts() if words in text), None)).replace(
                        "\n•  ", " ").replace("\n", ", ")

    # ---- Input

    def keys(self, *keys):
        subprocess.run(["xdotool", "key", *keys], check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "30", text], check=True)

    def place(self, control):
        at = control.queryComponent().getExtents(self._atspi.DESKTOP_COORDS)
        return at.x, at.y, at.width, at.height

    def point_at(self, control, left=None):
        """Waits until a control no longer moves, then moves the mouse to its center, or to `left` pixels from its left
        edge."""
        def still():
            place = self.place(control)
            time.sleep(POLL_INTERVAL)
            return place if place == self.place(control) and place[2] > 0 else None
        x, y, width, height = wait("a place to click at", still)
        x, y = x + (width // 2 if left is None else left), y + height // 2
        if not (0 <= x < SCREEN[0] and 0 <= y < SCREEN[1]):
            raise Failed("“%s” is outside the screen, at %d, %d" % (control.name, x, y))
        subprocess.run(["xdotool", "mousemove", str(x), str(y)], check=True)

    def click(self, control, left=None):
        self.point_at(control, left)
        subprocess.run(["xdotool", "click", "1"], check=True)

    def scroll_down(self, control):
        """Scrolls the page that contains the control to its end, with the wheel."""
        self.point_at(control)
        subprocess.run(["xdotool", "click", "--repeat", "20", "--delay", "20", "5"], check=True)

    def tooltip(self, control, words):
        """Returns the tooltip of a control once it contains `words`. A visible tooltip is not updated, so the mouse moves away
        and returns."""
        def shown():
            self.point_at(control)
            end = time.monotonic() + 2
            while time.monotonic() < end:
                tip = next((tip.name for tip in self.all("tool tip") if words in tip.name), None)
                if tip:
                    return tip
                time.sleep(POLL_INTERVAL)
            subprocess.run(["xdotool", "mousemove", "1", "1"], check=True)
            return None
        return wait("“%s” in the tooltip of “%s”" % (words, control.name), shown).replace("\n", ", ")

    def choose(self, label, item):
        """Opens the list of a combo box with the mouse, and clicks an item."""
        box = self.box(label)
        self.click(box)
        entry = wait("“%s” in the list of “%s”" % (item, label), lambda: next(
            (node for node in self.all("list item", box) if node.name == item), None))
        self.click(entry)

    def pick(self, button, entry):
        """Opens the menu of a button with the mouse, and selects an entry whose name begins with `entry` with the keyboard.
        An open menu is not in the tree of a window, but sends an event when an entry gets the focus."""
        self.click(button)
        passed = []
        while not passed or not passed[-1].startswith(entry):
            if len(passed) > 20:
                raise Failed("no “%s” in the menu: %s" % (entry, ", ".join(passed)))
            self._focused.clear()
            self.keys("Down")
            passed.append(wait("an entry of the menu", lambda: self._focused and self._focused[-1]))
        self.keys("Return")

    def pixels(self, control, color):
        """The number of pixels of the control on the screen that have the color."""
        x, y, width, height = self.place(control)
        shown = subprocess.run(["import", "-window", "root", "-crop", "%dx%d+%d+%d" % (width, height, x, y), "-depth", "8",
                                "rgb:-"], check=True, stdout=subprocess.PIPE).stdout
        return sum(shown[i:i + 3] == bytes(color) for i in range(0, len(shown), 3))

    def picture(self, path):
        """Saves a screenshot when two consecutive ones are equal, or the last one after the timeout."""
        def screenshot():
            return subprocess.run(["import", "-window", "root", "png:-"], check=True, stdout=subprocess.PIPE).stdout

        def steady():
            nonlocal last
            before, last = last, screenshot()
            return before == last
        last = None
        try:
            wait("a screen that does not change", steady)
        finally:
            if last:
                with open(path, "wb") as file:
                    file.write(last)
