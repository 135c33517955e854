#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Charges a battery, records a flight in full mode, corrects it and exports it: with assistive technology alone, and
with the keyboard alone. On the way it never meets an object without a name.

Usage: dbus-run-session -- accessibility.py PROGRAM atspi|keyboard
"""

import json
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parent / "support"))
from atspi import FILE_DIALOG, Failure, Keyboard, Program, Screen, wait_for  # noqa: E402

BATTERY = """    <Battery>
        <Name>{}</Name>
        <Capacity>1300</Capacity>
        <Chrgrate>20</Chrgrate>
        <Dischrgrate>30</Dischrgrate>
        <Purchase>2025/03/14</Purchase>
        <Cycles>2</Cycles>
        <Charged>{}</Charged>
        <LastUse>Sun Nov 8 11:02:10 2026</LastUse>
    </Battery>
"""
LOGBOOK = f"""<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE Voltbok>
<Voltbok>
    <Locations>
        <Location Name="Club field"/>
        <Location Name="Meadow"/>
    </Locations>
{BATTERY.format("3S A", 0)}{BATTERY.format("3S B", 1)}    <Model>
        <Name>Glider</Name>
        <Type>Plane</Type>
        <Weight>114</Weight>
        <Size>700</Size>
        <Purchase>2025/03/14</Purchase>
        <Flights>2</Flights>
        <Notes></Notes>
        <LastUpdate>Sun Nov 8 11:02:10 2026</LastUpdate>
        <Battery>3S A</Battery>
        <Battery>3S B</Battery>
    </Model>
</Voltbok>
"""


class Logbook:
    """The data file, as it is read by nothing of the program."""

    def __init__(self, folder):
        self.file = folder / "voltbok.xml"
        folder.mkdir()
        self.file.write_text(LOGBOOK, encoding="utf-8")

    def read(self):
        return ElementTree.parse(self.file).getroot()

    def battery(self, name):
        return next(battery for battery in self.read().findall("Battery") if battery.findtext("Name") == name)

    def charged(self, name):
        return self.battery(name).findtext("Charged") == "1"

    def flights(self):
        return [dict(flight.attrib) for flight in self.read().iter("LogData")]


def check(condition, what):
    if not condition:
        raise Failure(what)


def look(program, step):
    """Everything that can have the focus has a name."""
    nameless = program.nameless()
    check(not nameless, f"{step}: without a name: " + "; ".join(nameless))


def check_recorded(logbook):
    """The flight and its discharge, as they were entered, and the charge before them."""
    wait_for("the flight in the file", lambda: len(logbook.flights()) == 1)
    flight = logbook.flights()[0]
    discharge = logbook.battery("3S A").find("Data/Cycle").attrib
    check(flight["Location"] == "Meadow" and flight["Duration"] == "00:06:40" and flight["Notes"] == "Smooth" and
          flight["Temperature"] == "17", f"recorded: {flight}")
    check(discharge["Discharged"] == "910" and discharge["Current"] == "2150", f"recorded: {discharge}")
    check(discharge["Date"] == flight["Date"], f"recorded: {flight}, {discharge}")


def check_edited(logbook):
    """The flight as it was corrected in the dialog; what was not touched there is as it was."""
    wait_for("the new duration in the file", lambda: logbook.flights()[0]["Duration"] == "00:07:20")
    flight = logbook.flights()[0]
    check(flight["Location"] == "Meadow" and flight["Notes"] == "Smooth, then gusts" and flight["Temperature"] == "16",
          f"edited: {flight}")
    discharge = logbook.battery("3S A").find("Data/Cycle").attrib
    check(discharge == {"Date": flight["Date"], "Discharged": "925", "Current": "2150"}, f"edited: {discharge}")


def check_corrected(logbook):
    wait_for("the correction in the file", lambda: logbook.battery("3S B").find("Data/Cycle") is not None)
    check(logbook.battery("3S A").find("Data/Cycle") is None, "the discharge is still with the other battery")


def check_exported(target, duration, temperature):
    wait_for("the export", target.exists)
    flight = wait_for("the whole export", lambda: json.loads(target.read_text(encoding="utf-8")))["models"][0]["log"][0]
    check(flight["location"] == "Meadow" and flight["duration_s"] == duration and
          flight["temperature_C"] == temperature and flight["batteries"] == ["3S B"], f"exported: {flight}")


def by_assistive_technology(program, logbook, target):
    """Nothing but the actions, values, texts and selections that the program offers."""
    look(program, "the overview")
    program.press("push button", "3S A: discharged;.*")
    program.find("push button", "3S A: charged;.*")
    wait_for("the charge in the file", lambda: logbook.charged("3S A"))
    look(program, "the charged battery")

    program.press("push button", "Menu")
    program.find("push button", "Mode")
    look(program, "the options")
    program.press("push button", "Mode")
    program.find("radio button", "Full")
    look(program, "the mode")
    program.press("radio button", "Full")
    program.press("push button", "Menu")
    program.find("push button", "Mode")
    program.press("push button", "Menu")

    program.press("push button", "3S A: charged;.*")
    program.find("push button", "OK")
    look(program, "the discharge")
    program.set_value("Capacity (mAh)", 910)
    program.set_value("Maximum current (A)", 21.5)
    program.choose("Location", "Meadow")
    program.write("spin button", "Duration, hours:minutes:seconds", "00:06:40")
    program.set_value("Ambient temp", 17)
    program.write("text", "Notes", "Smooth")
    program.press("push button", "OK")
    program.find("push button", "3S A: discharged;.*")
    check_recorded(logbook)
    look(program, "the recorded flight")

    for tab in ("Batteries", "Statistics", "Flights"):
        program.press("page tab", tab)
        program.find("page tab list", tab)
        look(program, tab)
    program.press("table cell", "3S A")
    program.press("push button", "Edit…")
    program.find("dialog", "Edit a Flight")
    look(program, "editing")
    program.write("spin button", "Duration", "00:07:20")
    program.set_value("Discharged", 925)
    program.set_value("Temperature", 16)
    program.write("text", "Notes", "Smooth, then gusts")
    program.press("push button", "Save")
    check_edited(logbook)
    program.find("table cell", "00:07:20")
    look(program, "the edited flight")

    program.press("push button", "Move…")
    program.find("dialog", "Move Flights")
    look(program, "moving")
    program.choose("To the battery", "3S B")
    program.press("push button", "Move")
    check_corrected(logbook)
    program.find("table cell", "3S B")
    look(program, "the corrected flight")

    program.command("Logbook", "Export…")
    program.find("dialog", "Export")
    look(program, "the export")
    program.choose("Format", "Everything for scripts (JSON)")
    look(program, "the export in another format")
    program.press("push button", "Export…")
    look(program, program.find("dialog", FILE_DIALOG).name)
    program.write("text", "File name:", str(target))
    program.press("push button", "Save")
    check_exported(target, 440, 16)
    program.find("label", "The logbook was exported to .*")
    look(program, "the message")
    program.command("Logbook", "Quit")


def by_keyboard(program, logbook, target):
    keyboard = Keyboard(program)
    keyboard.go_to("push button", "3S A: discharged;.*")
    keyboard.press("space")
    wait_for("the charge in the file", lambda: logbook.charged("3S A"))

    keyboard.go_to("push button", "Menu")
    keyboard.press("space")
    keyboard.go_to("push button", "Mode")
    keyboard.press("space")
    keyboard.expect("radio button", "Quick")
    keyboard.press("Right")
    keyboard.expect("radio button", "Full")
    keyboard.press("Escape", "Escape")

    keyboard.go_to("push button", "3S A: charged;.*")
    keyboard.press("space")
    keyboard.expect("spin button", "Date.*")
    keyboard.fill("spin button", r"Capacity \(mAh\)", "910")
    keyboard.fill("spin button", r"Maximum current \(A\)", "21.5")
    keyboard.go_to("combo box", "Location")
    keyboard.press("Down")
    keyboard.go_to("spin button", "Duration.*")
    keyboard.type("000640")
    keyboard.fill("spin button", "Ambient.*", "17")
    keyboard.fill("text", "Notes", "Smooth")
    keyboard.go_to("push button", "OK")
    keyboard.press("space")
    check_recorded(logbook)

    keyboard.go_to("page tab list", "Today")
    keyboard.press("Right", "Right")
    keyboard.go_to("table", "Flights")
    keyboard.press("Home", "Right", "Right", "F2")
    # Qt keeps the editor of a cell out of the tree; it has taken the focus from the table.
    wait_for("the cell's editor", lambda: not program.has_focus("table", "Flights"))
    keyboard.press("Down", "Return")
    check_corrected(logbook)

    keyboard.press("alt+l")
    menu = program.find("menu item", "Logbook")
    wait_for("the menu", lambda: any(program.shows(item) for item in program.menu_items(menu)))
    keyboard.press("e")
    program.find("dialog", "Export")
    keyboard.go_to("combo box", "Format")
    keyboard.press("End", "alt+e")
    program.find("dialog", FILE_DIALOG)
    keyboard.fill("text", "File name:", str(target))
    keyboard.press("Return")
    check_exported(target, 400, 17)
    wait_for("the window to be active", lambda: any(program.is_active(window) for window in program.root))
    keyboard.press("ctrl+q")


WAYS = {"atspi": by_assistive_technology, "keyboard": by_keyboard}


def main():
    binary, way = sys.argv[1:]
    with tempfile.TemporaryDirectory(prefix="accessibility-") as home:
        screen = Screen(home)
        try:
            logbook = Logbook(Path(home) / "log")
            process = screen.start(binary, "--data", str(logbook.file.parent))
            WAYS[way](Program(process), logbook, Path(home) / "exported.json")
            wait_for("the program's end", lambda: process.poll() is not None)
            check(process.returncode == 0, f"the program ended with {process.returncode}")
        finally:
            screen.end()


if __name__ == "__main__":
    try:
        main()
    except Failure as failure:
        sys.exit(f"accessibility: {failure}")
