# SPDX-License-Identifier: GPL-3.0-or-later
"""The program on a screen of its own, seen and used as assistive technology does: through AT-SPI alone."""

import os
import re
import subprocess
import time
from pathlib import Path

PATIENCE = 60.0  # seconds; the machine may have much other work

# What needs no name of its own although it can have the focus, and why.
NAMELESS = {
    # Its name is its text; an empty one says all there is, and its column's header says the rest.
    "table cell",
}

FILE_DIALOG = "Export the Logbook"


class Failure(Exception):
    """What a user would have met."""


def wait_for(what, found, patience=PATIENCE):
    """The first result of found() that is true; objects that went while they were looked at are looked up anew."""
    end = time.monotonic() + patience
    while True:
        try:
            result = found()
            if result:
                return result
        except LookupError:
            pass
        except Exception as error:  # GLib.Error: it went
            if type(error).__module__ not in ("gi.repository.GLib", "gi._error", "gi._gi"):
                raise
        if time.monotonic() > end:
            raise Failure(f"in vain waited for {what}")
        time.sleep(0.05)


def role_of(item):
    """The name of its role; newer versions of AT-SPI call a push button a button."""
    name = item.getRoleName()
    return "push button" if name == "button" else name


class Screen:
    """Xvfb with a window manager; whatever is written goes to a home of its own."""

    def __init__(self, home):
        self.home = Path(home)
        self.children = []
        for name in ("run", "home", "tmp"):
            (self.home / name).mkdir(mode=0o700)
        reading, writing = os.pipe()
        self.start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x900x24", "-nolisten", "tcp", "-noreset",
                   pass_fds=[writing])
        os.close(writing)
        number = os.read(reading, 20).decode().strip()
        if not number:
            raise Failure("no Xvfb: is the package xvfb installed?")
        plain = str(self.home / "home")
        for name in ("HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"):
            os.environ[name] = plain
        os.environ.update(DISPLAY=f":{number}", XDG_RUNTIME_DIR=str(self.home / "run"),
                          TMPDIR=str(self.home / "tmp"), QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8",
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        for name in ("WAYLAND_DISPLAY", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "XDG_CURRENT_DESKTOP"):
            os.environ.pop(name, None)
        self.start("openbox", "--sm-disable")

    def start(self, *command, **options):
        child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options)
        self.children.append(child)
        return child

    def end(self):
        for child in reversed(self.children):
            child.terminate()
            try:
                child.wait(PATIENCE)
            except subprocess.TimeoutExpired:
                child.kill()


class Program:
    """The program of one process in the tree of all accessible objects."""

    def __init__(self, process):
        import pyatspi  # not before there is a screen: it connects to the bus at once

        self.atspi = pyatspi
        pyatspi.Atspi.set_timeout(3000, 3000)  # milliseconds; what opens a dialog takes as long
        self.process = process
        self.root = wait_for("the program among the accessible ones", self.look_up)
        self.root.setCacheMask(pyatspi.Atspi.Cache.NONE)  # nobody listens to what would keep a cache up to date
        wait_for("the window to be active", lambda: any(self.is_active(window) for window in self.root))

    def look_up(self):
        if self.process.poll() is not None:
            raise Failure(f"the program ended with {self.process.returncode}")
        for application in self.atspi.Registry.getDesktop(0):
            if application and application.get_process_id() == self.process.pid:
                return application if application.childCount else None
        return None

    def states(self, item):
        return item.getState().getStates()

    def is_active(self, window):
        return self.atspi.STATE_ACTIVE in self.states(window)

    def shows(self, item):
        return self.atspi.STATE_SHOWING in self.states(item)

    def items(self, item=None):
        """Everything on show, from the top; what lies in something hidden is hidden whatever it says itself."""
        for child in item or self.root:
            if child and self.shows(child):
                yield child
                if role_of(child) != "menu item":
                    yield from self.items(child)

    def menu_items(self, item):
        for child in item:
            if child:
                yield child
                yield from self.menu_items(child)

    def find(self, role, name, where=None):
        """The object on show with this role, whose name matches a regular expression."""
        def look():
            for item in self.items(where):
                if role_of(item) == role and re.fullmatch(name, item.name):
                    return item
            return None
        return wait_for(f"the {role} “{name}”", look)

    def labels(self, item):
        labelled = [relation for relation in item.getRelationSet()
                    if relation.getRelationType() == self.atspi.RELATION_LABELLED_BY]
        return [relation.getTarget(0).name for relation in labelled]

    def chooser(self, name):
        """A combo box is named after its value; its label or description says what it is."""
        def look():
            for item in self.items():
                if role_of(item) == "combo box" and name in [*self.labels(item), item.description]:
                    return item
            return None
        return wait_for(f"the combo box for “{name}”", look)

    def field(self, role, name):
        """An input that has this name, or a label that says so."""
        def look():
            for item in self.items():
                if role_of(item) == role and name in [item.name, *self.labels(item)]:
                    return item
            return None
        return wait_for(f"the {role} for “{name}”", look)

    def nameless(self):
        """What can have the focus and could not be told from anything else."""
        found = []
        for item in self.items():
            if self.atspi.STATE_FOCUSABLE not in self.states(item) or role_of(item) in NAMELESS:
                continue
            said = [*self.labels(item), item.description]
            # A combo box is named after its value, which does not say what it is for. Those of the box in which a
            # file is chosen are Qt's, or the desktop's.
            if role_of(item) != "combo box" or f"dialog “{FILE_DIALOG}”" in self.path(item):
                said.append(item.name)
            if not "".join(said).strip():
                found.append(f"{role_of(item)} “{item.name}” in {self.path(item)}")
        return found

    def path(self, item):
        names = []
        while item.parent and item.parent != self.root:
            item = item.parent
            names.append(f"{role_of(item)} “{item.name}”")
        return " in ".join(names)

    def act(self, item, *actions):
        """Does the first of these actions that the object has."""
        interface = item.queryAction()
        names = [interface.getName(number) for number in range(interface.nActions)]
        for action in actions:
            if action in names:
                return self.do_action(interface, names.index(action))
        raise Failure(f"the {role_of(item)} “{item.name}” has none of {actions}, but {names}")

    @staticmethod
    def do_action(interface, number):
        try:
            interface.doAction(number)
        except Exception as error:
            if "Did not receive a reply" not in str(error):  # what opens a dialog replies when that is closed
                raise

    def press(self, role, name):
        self.act(self.find(role, name), "Press", "Toggle")

    def choose(self, chooser, name):
        """Selects an item in a combo box."""
        box = self.chooser(chooser)
        for item in self.menu_items(box):
            if item.name == name:
                self.act(item, "Toggle")
                wait_for(f"“{name}” to be chosen", lambda: box.name == name)
                return
        raise Failure(f"“{chooser}” does not offer “{name}”")

    def write(self, role, name, text):
        field = self.field(role, name)
        field.queryEditableText().setTextContents(text)
        written = field.queryText()
        wait_for(f"“{text}” in “{name}”", lambda: written.getText(0, written.characterCount).startswith(text))

    def set_value(self, name, value):
        field = self.field("spin button", name).queryValue()
        field.currentValue = value
        wait_for(f"{value} in “{name}”", lambda: field.currentValue == value)

    def has_focus(self, role, name):
        return any(self.atspi.STATE_FOCUSED in self.states(item) and role_of(item) == role and
                   any(re.fullmatch(name, said) for said in (item.name, *self.labels(item)))
                   for item in self.items())

    def command(self, menu, entry):
        """Gives a command of the menu bar."""
        for item in self.menu_items(self.find("menu item", menu)):
            if re.fullmatch(entry, item.name):
                return self.act(item, "Press")
        raise Failure(f"the menu “{menu}” has no “{entry}”")


class Keyboard:
    """Keys alone; the program is only looked at for where they go."""

    def __init__(self, program):
        self.program = program

    @staticmethod
    def press(*keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)

    @staticmethod
    def type(text):
        subprocess.run(["xdotool", "type", text], check=True)

    def go_to(self, role, name):
        """Tab leads there from wherever one is."""
        for _ in range(60):
            if self.program.has_focus(role, name):
                return
            self.press("Tab")
        raise Failure(f"Tab does not lead to the {role} “{name}”")

    def expect(self, role, name):
        wait_for(f"the focus on the {role} “{name}”", lambda: self.program.has_focus(role, name))

    def fill(self, role, name, text):
        self.go_to(role, name)
        self.press("ctrl+a")
        self.type(text)
