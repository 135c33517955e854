#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Works the figures and the advice of a data file out a second time, by other means, and prints them as JSON.

    figures.py FILE TODAY [FROM [TO]]      dates as yyyy-mm-dd, "-" for none
"""

import json
import math
import sys
import xml.etree.ElementTree as tree
from collections import Counter, defaultdict
from datetime import date, datetime
from fractions import Fraction
from statistics import median


def moment(text):
    try:
        return datetime.strptime(text, "%a %b %d %H:%M:%S %Y")
    except (ValueError, TypeError):
        return None


def seconds(text):
    try:
        return (datetime.strptime(text, "%H:%M:%S") - datetime(1900, 1, 1)).seconds
    except (ValueError, TypeError):
        return 0


class Discharge:
    def __init__(self, node, battery):
        self.when = moment(node.get("Date"))
        self.mAh = int(node.get("Discharged"))
        self.current = int(node.get("Current"))
        self.battery = battery

    @property
    def source(self):
        if self.mAh == 0 and self.current == 0:
            return "none"
        if (self.mAh, self.current) == self.battery.preset:
            return "guessed"
        return "entered"

    @property
    def counted(self):
        return self.source == "entered"


class Battery:
    def __init__(self, node):
        text = lambda key: node.findtext(key, "")
        self.name = text("Name")
        self.capacity = int(text("Capacity"))
        self.rating = int(text("Dischrgrate"))
        self.charged = text("Charged") == "1"
        self.last_use = moment(text("LastUse"))
        try:
            self.bought = datetime.strptime(text("Purchase"), "%Y/%m/%d").date()
        except ValueError:
            self.bought = None
        # Two decimals as a field shows them, then whole hundredths of the double that they are.
        amperes = min(self.rating * self.capacity / 1000.0, 300.0)
        self.preset = (min(self.capacity * 80 // 100, 20000), int(float("%.2f" % amperes) * 100.0))
        self.discharges = [Discharge(entry, self) for entry in node.findall("Data/Cycle")]


class Flight:
    def __init__(self, node, model):
        self.when = moment(node.get("Date"))
        self.seconds = seconds(node.get("Duration"))
        self.location = node.get("Location", "")
        degrees = int(node.get("Temperature", "0"))
        self.degrees = degrees - 2**32 if degrees >= 2**31 else degrees
        self.model = model


def since(battery, today, discharges):
    days = [d.when.date() for d in discharges if d.when]
    if battery.last_use:
        days.append(battery.last_use.date())
    days = [(today - max(days)).days] if days else []
    return days[0] if days and days[0] >= 0 else None


def ratio(a, b):
    return float(Fraction(a) / Fraction(b)) if b else None


def figures(batteries, models, names, today, first, last):
    limited = first or last

    def inside(entry):
        if not limited:
            return True
        return bool(entry.when) and (not first or entry.when.date() >= first) and (not last or entry.when.date() <= last)

    flights = [flight for model in models for flight in model[1]]
    at = defaultdict(list)
    for flight in flights:
        if flight.when:
            at[flight.when].append(flight)
    result = {"batteries": [], "models": [], "locations": [], "months": []}
    for b in batteries:
        mine = [d for d in b.discharges if inside(d)]
        counted = [d for d in mine if d.counted]
        depths = [d.mAh for d in counted if d.mAh]
        flown = [f for when in dict.fromkeys(d.when for d in mine if d.when) for f in at[when]]
        timed = []
        for d in counted:
            there = [f for f in at[d.when] if f.seconds] if d.when else []
            if there and d.mAh:
                timed.append((d.mAh, there[0].seconds))
        load = max((d.current for d in counted), default=0)
        age = (today - b.bought).days if b.bought else -1
        result["batteries"].append({
            "name": b.name, "discharges": len(mine), "counted": len(counted),
            "discharged_mAh_total": sum(d.mAh for d in mine),
            "discharged_mAh_guessed": sum(d.mAh for d in mine if d.source == "guessed"),
            "equivalent_full_cycles": ratio(sum(d.mAh for d in mine), b.capacity),
            "median_depth": ratio(Fraction(median(depths)), b.capacity) if depths else None,
            "max_depth": ratio(max(depths), b.capacity) if depths else None,
            "max_load_C": ratio(load * 10, b.capacity) if load else None,
            "age_days": age if age >= 0 else None,
            "days_since_use": since(b, today, b.discharges),
            "flights": len(flown), "minutes": sum(f.seconds for f in flown) / 60,
            "mean_mAh_per_minute": ratio(sum(m for m, s in timed) * 60, sum(s for m, s in timed)),
            "flights_per_month": Counter(f"{f.when:%Y-%m}" for f in flown)})
    for name, log in models:
        mine = [f for f in log if inside(f)]
        whens = [f.when for f in mine if f.when]
        timed = [f.seconds for f in mine if f.seconds]
        used = Counter(b.name for f in mine if f.when for b in batteries if any(d.when == f.when for d in b.discharges))
        result["models"].append({
            "name": name, "flights": len(mine), "minutes": sum(f.seconds for f in mine) / 60,
            "first": min(whens).isoformat() if whens else None, "last": max(whens).isoformat() if whens else None,
            "mean_minutes": sum(timed) / 60 / len(timed) if timed else None,
            "locations": Counter(f.location for f in mine if f.location), "batteries": used})
    flights = [f for f in flights if inside(f)]
    for place in dict.fromkeys(names + [f.location for f in flights if f.location]):
        there = [f for f in flights if f.location == place]
        result["locations"].append({"name": place, "flights": len(there), "minutes": sum(f.seconds for f in there) / 60})
    discharges = [d for b in batteries for d in b.discharges if inside(d)]
    for month in sorted({f"{e.when:%Y-%m}" for e in flights + discharges if e.when}):
        of = lambda entries: [e for e in entries if e.when and f"{e.when:%Y-%m}" == month]
        result["months"].append({"month": month, "flights": len(of(flights)), "minutes": sum(f.seconds for f in of(flights)) / 60,
                                 "discharged_mAh": sum(d.mAh for d in of(discharges))})
    result["total"] = {"flights": len(flights), "minutes": sum(f.seconds for f in flights) / 60,
                       "discharged_mAh": sum(d.mAh for d in discharges)}
    return result


def three_years_after(day):
    try:
        return day.replace(year=day.year + 3)
    except ValueError:
        return day.replace(year=day.year + 3, day=28)


KINDS = ["storage", "deep", "load", "cold", "idle", "age", "timer"]


def advice(batteries, models, today):
    at = defaultdict(list)
    for name, log in models:
        for flight in log:
            if flight.when and flight.when.date() <= today:
                at[flight.when].append(flight)
    found = []
    for b in batteries:
        def add(kind, severity, value, model=None):
            found.append({"battery": b.name, "model": model, "kind": kind, "severity": severity, "value": value})
        past = [d for d in b.discharges if d.when and d.when.date() <= today]
        last_use = b.last_use
        if last_use and last_use.date() > today:
            b.last_use = None
        days = since(b, today, past)
        b.last_use = last_use
        if b.charged and days is not None and days >= 2:
            add("storage", "warning" if days >= 5 else "notice", days)
        ten = sorted((d for d in past if d.counted), key=lambda d: d.when)[-10:]
        if b.capacity and any(d.mAh * 10 > b.capacity * 8 for d in ten):
            very = sum(d.mAh * 10 > b.capacity * 9 for d in ten)
            add("deep", "warning" if very >= 2 else "notice", max(d.mAh for d in ten) / b.capacity)
        if b.capacity and b.rating and ten and max(d.current for d in ten) > b.preset[1]:
            add("load", "warning", max(d.current for d in ten) * 10 / b.capacity)
        flown = sorted({d.when for d in past if at[d.when]})
        if flown and (today - flown[-1].date()).days <= 30:
            degrees = at[flown[-1]][0].degrees
            if degrees < 10 and degrees != 0:
                add("cold", "notice", degrees)
        if days is not None and days >= 90:
            add("idle", "notice", days)
        if b.bought and b.bought <= today and three_years_after(b.bought) <= today:
            add("age", "notice", (today - b.bought).days)
        for name, log in models:
            rates = []
            for d in sorted(past, key=lambda d: d.when):
                timed = [f for f in at[d.when] if f.seconds]
                if d.counted and d.mAh and timed and timed[0].model == name:
                    rates.append(Fraction(d.mAh * 60, timed[0].seconds))
            if b.capacity and len(rates) >= 3:
                exact = Fraction(8, 10) * b.capacity / Fraction(median(rates[-10:])) * 60
                value = math.floor(exact / 15) * 15
                if value >= 15:
                    add("timer", "notice", value, name)
    found.sort(key=lambda a: (a["severity"] != "warning", KINDS.index(a["kind"]), -a["value"], a["battery"], a["model"] or ""))
    return found


def main():
    root = tree.parse(sys.argv[1]).getroot()
    day = lambda text: date.fromisoformat(text) if text != "-" else None
    today, first, last = (day(text) for text in (sys.argv[2:] + ["-", "-"])[:3])
    batteries = [Battery(node) for node in root.findall("Battery")]
    models = [(node.findtext("Name"), [Flight(entry, node.findtext("Name")) for entry in node.findall("FlightLog/LogData")])
              for node in root.findall("Model")]
    names = [node.get("Name") for node in root.findall("Locations/Location")]
    result = figures(batteries, models, names, today, first, last)
    result["due"] = advice(batteries, models, today)
    json.dump(result, sys.stdout)


if __name__ == "__main__":
    main()
