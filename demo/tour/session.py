# SPDX-FileCopyrightText: 2026 The kelmar-print authors
# SPDX-License-Identifier: Apache-2.0
"""A desktop session of one's own, and a program in it that is worked as a user works it: with the keyboard and the
mouse of the display, by what its controls say of themselves over the accessibility bus."""

import ctypes
import os
import signal
import subprocess
import time

PATIENCE = 15  # seconds for whatever is waited for
INTERVAL = 0.05  # seconds between two looks
SCREEN = (900, 640)  # pixels


class Failed(Exception):
    """What a user would have seen did not happen; says what."""


def expect(what, is_so):
    if not is_so:
        raise Failed(what)


def wait(what, condition):
    """What the condition gives as soon as that is something."""
    from gi.repository import GLib
    end = time.monotonic() + PATIENCE
    while True:
        while GLib.MainContext.default().iteration(False):
            pass  # what the accessibility bus tells
        got = condition()
        if got:
            return got
        if time.monotonic() > end:
            raise Failed("waited for %s in vain" % what)
        time.sleep(INTERVAL)


def _die_with_parent():
    ctypes.CDLL(None).prctl(1, signal.SIGTERM)  # PR_SET_PDEATHSIG


class Session:
    """Display, bus and window manager; all of them end with it. The process's own environment is made that of the
    session, so that what is started later is in it."""

    def __init__(self):
        self._processes = []
        self._log = open("session.log", "ab")

    def __enter__(self):
        os.environ["DISPLAY"] = ":" + self._told(
            ["Xvfb", "-displayfd", "{}", "-screen", "0", "%dx%dx24" % SCREEN, "-nolisten", "tcp", "-noreset"])
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._told(
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
                process.wait(PATIENCE)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self._log.close()

    def start(self, command, **how):
        """A process that does not outlive the session. Its output is in session.log."""
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=self._log, stderr=self._log,
                                   preexec_fn=_die_with_parent, **how)
        self._processes.append(process)
        return process

    def _told(self, command):
        """Starts a server that tells where it can be reached when it can, on the descriptor put in for {}."""
        reader, writer = os.pipe()
        self.start([word.format(writer) for word in command], pass_fds=[writer])
        os.close(writer)
        with os.fdopen(reader) as told:
            line = told.readline().strip()
        if not line:
            raise Failed("%s does not start" % command[0])
        return line


class Program:
    """A running program with one main window. Controls are named by their accessible role and name; boxes whose name is
    their value by the label before them."""

    def __init__(self, session, command):
        import pyatspi  # reads where the bus is
        self._atspi = pyatspi
        self._heard = []  # names of what the keyboard came to, as a screen reader says them
        pyatspi.Registry.registerEventListener(self._hear, "object:state-changed:focused")
        self.process = session.start(command, env=dict(os.environ, QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="1",
                                                       QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1"))
        self.pid = self.process.pid  # of the process with the window

    def follow_child(self):
        """The window is that of a process that the program has started."""
        self.pid = int(wait("a child of the program", lambda: subprocess.run(
            ["ps", "-o", "pid=", "--ppid", str(self.process.pid)], stdout=subprocess.PIPE).stdout.split())[0])

    def end(self):
        """Closes the window, in which a job has been printed, and waits for the end of the program."""
        self.keys("Return")
        wait("the end of the program", lambda: self.process.poll() is not None)
        expect("the program ended with %s" % self.process.returncode, self.process.returncode == 0)

    def _hear(self, event):
        from gi.repository import GLib
        try:
            if event.detail1:
                self._heard.append(event.source.name)
        except (GLib.GError, LookupError, RuntimeError):
            pass  # gone already

    # ---- what is to be seen

    def _application(self):
        for application in self._atspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.pid:
                application.set_cache_mask(0)  # what a cache says may be over
                return application
        return None

    def all(self, role=None, within=None):
        """What is showing of that role, in the order of the window."""
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
                pass  # gone while it was looked at

        top = within or self._application()
        if top:
            look(top)
        elif self.process.poll() is not None:
            raise Failed("the program has ended (%s)" % self.process.returncode)
        return found

    def role(self, control):
        """The name of its role. For buttons it depends on the versions of Qt and AT-SPI, and on whether they have a menu."""
        name = control.getRoleName()
        return "button" if name in ("push button", "push button menu", "button menu") else name

    def has(self, control, state):
        return control.getState().contains(getattr(self._atspi, "STATE_" + state))

    def now(self, role, name, within=None):
        """A control whose name begins so, if it is there."""
        return next((node for node in self.all(role, within) if node.name.startswith(name)), None)

    def get(self, role, name):
        """The same, waited for."""
        return wait("the %s “%s”" % (role, name), lambda: self.now(role, name))

    def box(self, label):
        """The box that has this label."""
        def labelled():
            for box in self.all("combo box"):
                for relation in box.getRelationSet():
                    if relation.getRelationType() == self._atspi.RELATION_LABELLED_BY and any(
                            relation.getTarget(i).name == label for i in range(relation.getNTargets())):
                        return box
            return None
        return wait("the box “%s”" % label, labelled)

    def focus_on(self, name):
        """Waits until the keyboard is on the control of that name."""
        return wait("the keyboard on “%s”" % name, lambda: next(
            (node for node in self.all() if self.has(node, "FOCUSED") and node.name == name), None))

    def reach(self, name, act):
        """Does something that moves the keyboard to the control whose name begins so. It may be in a list or menu that is in
        no window's tree."""
        self._heard.clear()
        act()
        wait("the keyboard on “%s”" % name, lambda: any(heard.startswith(name) for heard in self._heard))

    def texts(self):
        """The texts of labels, and of labels that a screen reader announces."""
        return [node.name for role in ("label", "notification") for node in self.all(role) if node.name]

    def says(self, words):
        """Waits for a text that holds the words; the whole of it."""
        return wait("the text “%s”" % words,
                    lambda: next((text for text in self.texts() if words in text), None)).replace(
                        "\n•  ", " ").replace("\n", ", ")

    # ---- what is done

    def keys(self, *keys):
        subprocess.run(["xdotool", "key", *keys], check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "30", text], check=True)

    def place(self, control):
        at = control.queryComponent().getExtents(self._atspi.DESKTOP_COORDS)
        return at.x, at.y, at.width, at.height

    def point_at(self, control, left=None):
        """Moves the mouse to the middle of the control, or that far from its left edge, once it has stopped moving."""
        def still():
            place = self.place(control)
            time.sleep(INTERVAL)
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
        """Turns the wheel with the mouse on the control until the end of what it is in."""
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
                time.sleep(INTERVAL)
            subprocess.run(["xdotool", "mousemove", "1", "1"], check=True)
            return None
        return wait("“%s” in the tooltip of “%s”" % (words, control.name), shown).replace("\n", ", ")

    def choose(self, label, item):
        """Opens the list of a box with the mouse, and picks an item there."""
        box = self.box(label)
        self.click(box)
        entry = wait("“%s” in the list of “%s”" % (item, label), lambda: next(
            (node for node in self.all("list item", box) if node.name == item), None))
        self.click(entry)

    def pick(self, button, entry):
        """Opens the menu of a button with the mouse and picks an entry whose name begins so with the keyboard: an open
        menu is in no window's tree, but says where the keyboard is."""
        self.click(button)
        passed = []
        while not passed or not passed[-1].startswith(entry):
            if len(passed) > 20:
                raise Failed("no “%s” in the menu: %s" % (entry, ", ".join(passed)))
            self._heard.clear()
            self.keys("Down")
            passed.append(wait("an entry of the menu", lambda: self._heard and self._heard[-1]))
        self.keys("Return")

    def pixels(self, control, color):
        """How many pixels of the control on the screen have the color."""
        x, y, width, height = self.place(control)
        shown = subprocess.run(["import", "-window", "root", "-crop", "%dx%d+%d+%d" % (width, height, x, y), "-depth", "8",
                                "rgb:-"], check=True, stdout=subprocess.PIPE).stdout
        return sum(shown[i:i + 3] == bytes(color) for i in range(0, len(shown), 3))

    def picture(self, path):
        """Keeps what the screen shows, once it shows the same for two looks."""
        def look():
            return subprocess.run(["import", "-window", "root", "png:-"], check=True, stdout=subprocess.PIPE).stdout

        def steady():
            nonlocal last
            before, last = last, look()
            return before == last
        last = None
        try:
            wait("a steady picture", steady)
        finally:
            if last:
                with open(path, "wb") as file:
                    file.write(last)
