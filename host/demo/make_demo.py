#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes voltbok.xml, the sample catalogue, beside this script. The same bytes every time."""

import random
from datetime import datetime, timedelta
from pathlib import Path
from xml.sax.saxutils import escape

NEWEST = datetime(2026, 11, 15)
LOCATIONS = ["Club field", "Meadow by the river", "Sports hall", "Slope at the quarry", "Flugplatz Süd", "Terrain de l'étang"]

# name, mAh, charge rate in tenths of C, rating in C, bought, discharges, charged
BATTERIES = [
    ("3S 450 A", 450, 20, 45, datetime(2025, 3, 14), 42, True),
    ("3S 450 B", 450, 20, 45, datetime(2025, 3, 14), 40, False),
    ("3S 1300", 1300, 30, 60, datetime(2024, 11, 2), 28, True),
    ("4S 2200", 2200, 15, 35, datetime(2023, 5, 20), 55, False),
    ("4S 3300 Glider", 3300, 20, 30, datetime(2024, 4, 6), 22, True),
    ("6S 3700 No. 1", 3700, 30, 50, datetime(2024, 8, 17), 48, True),
    ("6S 3700 No. 2", 3700, 30, 50, datetime(2024, 8, 17), 47, False),
    ("6S 5000 No. 1", 5000, 40, 65, datetime(2025, 6, 1), 31, True),
    ("6S 5000 No. 2", 5000, 40, 65, datetime(2025, 6, 1), 30, True),
    ("12S 5000", 5000, 30, 40, datetime(2023, 9, 9), 60, False),
    ("6S 4500 (retired)", 4500, 15, 30, datetime(2018, 4, 1), 58, False),
    ("4S 2200 new", 2200, 30, 45, datetime(2026, 11, 7), 0, True),
]

# name, type, weight, size, bought, flights before the log, notes, batteries, minutes a flight
MODELS = [
    ("Firebrand 550", "Heli", 310, 550, datetime(2024, 8, 20), 35, "Head dampers changed in March 2026.\nNächste Inspektion bei 200 Flügen.",
     ["6S 3700 No. 1", "6S 3700 No. 2", "6S 5000 No. 1", "6S 5000 No. 2", "6S 4500 (retired)"], 6),
    ("Skylark", "Glider", 185, 2600, datetime(2024, 4, 10), 12, "Ballast tube: 250 g at most.", ["4S 3300 Glider"], 38),
    ("Whirl 250", "Heli", 62, 250, datetime(2025, 3, 20), 80, "Pour la salle et le jardin.", ["3S 450 A", "3S 450 B"], 4),
    ("Ohm 12", "Aerobatics", 498, 1800, datetime(2023, 9, 15), 5, "", ["12S 5000", "4S 2200"], 8),
]

NOTES = ["", "", "", "", "Calm, blue sky", "Gusty from the west", "Autorotations", "Neue Blätter, Spurlauf eingestellt",
         "Premier vol de la saison", "Hard landing, nothing broken", "Voltage alarm came early", "Training with the club",
         "Inverted hover & \"funnels\" < 5 m", "Vento forte, rientro presto"]


def moment(when):
    return f"{when:%a %b} {when.day} {when:%H:%M:%S %Y}"


def element(indent, name, text):
    return f"{' ' * indent}<{name}>{escape(str(text), {chr(34): '&quot;'})}</{name}>\n"


def attribute(text):
    return escape(str(text), {'"': "&quot;"})


def discharges(rng, capacity, rating, bought, count):
    """(when, mAh, hundredths of an ampere), oldest first; a tired pack gives a little less."""
    span = (NEWEST - bought).total_seconds()
    days = sorted(rng.uniform(0.03, 1.0) for _ in range(count))
    history = []
    for i, part in enumerate(days):
        day = (bought + timedelta(seconds=span * part)).replace(hour=0, minute=0, second=0, microsecond=0)
        when = day + timedelta(hours=rng.randint(9, 18), minutes=rng.randint(0, 59), seconds=rng.randint(0, 59))
        tired = 1.0 - 0.12 * i / max(count, 1)
        used = int(capacity * rng.gauss(0.74, 0.06) * tired)
        peak = int(capacity / 1000 * rating * rng.uniform(0.35, 0.7) * tired * 100)
        history.append((when, max(used, 0), peak))
    return sorted(history)


def preset(capacity, rating):
    """What a quick capture records: 80 % of the capacity, and the highest current that the label allows."""
    return capacity * 80 // 100, rating * capacity // 10


def colour(histories):
    """What there is something to say about: captures in quick mode, deep discharges, loads over the label, a rest."""
    quick = {"3S 450 A": 5, "3S 450 B": 3, "3S 1300": 4}
    for name, capacity, _, rating, _, _, _ in BATTERIES:
        history = histories[name]
        for i in range(0, len(history), quick.get(name, len(history) + 1)):
            history[i] = (history[i][0], *preset(capacity, rating))
    history = histories["3S 450 B"]
    for i in (7, 20):  # recorded before figures were entered
        history[i] = (history[i][0], 0, 0)
    history = histories["4S 2200"]
    for i, used in ((-2, 2010), (-5, 2054)):
        history[i] = (history[i][0], used, history[i][2])
    history = histories["12S 5000"]
    history[-3] = (history[-3][0], history[-3][1], 21560)
    history = histories["3S 450 A"]
    history.append((history[-1][0] + DOUBLE, *preset(450, 45)))
    histories["6S 4500 (retired)"] = [entry for entry in histories["6S 4500 (retired)"] if entry[0] < datetime(2026, 6, 1)]


DOUBLE = timedelta(seconds=3)  # between two clicks on the card of a quick capture


def main():
    rng = random.Random(20261115)
    histories = {b[0]: discharges(rng, b[1], b[3], b[4], b[5]) for b in BATTERIES}
    colour(histories)
    out = ['<?xml version="1.0" encoding="UTF-8"?>\n<!DOCTYPE Voltbok>\n<Voltbok>\n    <Locations>\n']
    out += [f'        <Location Name="{attribute(name)}"/>\n' for name in LOCATIONS]
    out.append("    </Locations>\n")
    for name, capacity, charge_rate, rating, bought, count, charged in BATTERIES:
        history = histories[name]
        last = history[-1][0] + timedelta(hours=3, seconds=17) if history else bought + timedelta(hours=11)
        out.append("    <Battery>\n")
        for key, value in (("Name", name), ("Capacity", capacity), ("Chrgrate", charge_rate), ("Dischrgrate", rating),
                           ("Purchase", f"{bought:%Y/%m/%d}"), ("Cycles", count + (190 if "retired" in name else 0)),
                           ("Charged", int(charged)), ("LastUse", moment(last))):
            out.append(element(8, key, value))
        if history:
            out.append("        <Data>\n")
            out += [f'            <Cycle Discharged="{used}" Current="{peak}" Date="{moment(when)}"/>\n' for when, used, peak in history]
            out.append("        </Data>\n")
        out.append("    </Battery>\n")
    for name, kind, weight, size, bought, flights, notes, batteries, minutes in MODELS:
        flown = sorted(entry[0] for battery in batteries for entry in histories[battery] if entry[0] >= bought)
        out.append("    <Model>\n")
        for key, value in (("Name", name), ("Type", kind), ("Weight", weight), ("Size", size), ("Purchase", f"{bought:%Y/%m/%d}"),
                           ("Flights", flights), ("Notes", notes), ("LastUpdate", moment(bought + timedelta(hours=20)))):
            out.append(element(8, key, value))
        out += [element(8, "Battery", battery) for battery in batteries]
        out.append("        <FlightLog>\n")
        previous = None
        for when in flown:
            if previous and when - previous == DOUBLE:  # the same flight once more, captured by a double click
                out.append(out[-1].replace(moment(previous), moment(when)))
                continue
            previous = when
            location = "Sports hall" if "250" in name and when.month in (11, 12, 1, 2) else rng.choice(LOCATIONS[:2] + LOCATIONS[3:])
            duration = timedelta(minutes=minutes) + timedelta(seconds=rng.randint(-70, 70))
            celsius = 19 if location == "Sports hall" else round([1, 2, 7, 12, 17, 21, 24, 23, 18, 12, 6, 2][when.month - 1] + rng.gauss(0, 4))
            out.append(f'            <LogData Date="{moment(when)}" Location="{attribute(location)}" Duration="{(datetime.min + duration):%H:%M:%S}"'
                       f' Temperature="{celsius % 2**32}" Notes="{attribute(rng.choice(NOTES))}"/>\n')
        out.append("        </FlightLog>\n    </Model>\n")
    out.append("</Voltbok>\n")
    Path(__file__).with_name("voltbok.xml").write_text("".join(out), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
