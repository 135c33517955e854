# SPDX-License-Identifier: GPL-3.0-or-later
"""What a pilot meets who has installed the program on a German desktop.

Usage: dbus-run-session -- german.py DIRECTORY
"""

import os
import shlex
import sys
from configparser import ConfigParser
from pathlib import Path

sys.path.insert(0, "tests/host/support")
from atspi import Failure, Keyboard, Program, Screen, wait_for  # noqa: E402

SHARED = Path("/usr/share")
ENTRY = SHARED / "applications/org.voltbok.Voltbok.desktop"


def check(condition, what):
    if not condition:
        raise Failure(what)


def menu_entry():
    file = ConfigParser(interpolation=None)
    file.read_string(ENTRY.read_text(encoding="utf-8"))
    entry = file["Desktop Entry"]
    check(entry["GenericName[de]"] == "Akku- und Flugbuch", "the menu entry is not German")
    for size, ending in (("16x16", "png"), ("48x48", "png"), ("256x256", "png"), ("scalable", "svg")):
        icon = SHARED / "icons/hicolor" / size / "apps" / f"{entry['Icon']}.{ending}"
        check(icon.is_file(), f"no {icon}")
    return entry


def look(program):
    """The library, the program and the dialogs of Qt each bring German texts of their own."""
    program.find("label", "Willkommen")
    program.find("push button", "Beispiel öffnen")
    Keyboard.press("ctrl+o")
    program.find("push button", "Abbrechen")
    Keyboard.press("Escape")
    wait_for("the window to be active", lambda: any(program.is_active(window) for window in program.root))
    Keyboard.press("F1")
    manual = program.find("label", "Voltbok-Handbuch").queryText()
    title = "Voltbok: das Handbuch"
    check(manual.getText(0, len(title)) == title, f"the manual begins with “{manual.getText(0, len(title))}”")
    Keyboard.press("Escape", "ctrl+q")


def main():
    home = Path(sys.argv[1]) / "desktop"
    home.mkdir()
    screen = Screen(home)
    os.environ["LC_ALL"] = "de_DE.UTF-8"
    try:
        process = screen.start(*shlex.split(menu_entry()["Exec"]))
        look(Program(process))
        wait_for("the program's end", lambda: process.poll() is not None)
        check(process.returncode == 0, f"the program ended with {process.returncode}")
    finally:
        screen.end()


if __name__ == "__main__":
    try:
        main()
    except Failure as failure:
        sys.exit(f"german: {failure}")
