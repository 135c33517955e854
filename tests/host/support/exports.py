#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Reads a data file and what was exported from it by means that are not the program's, and prints each difference.

    exports.py FILE FOLDER SCHEMA     FOLDER: csv, csv-local, book.xlsx, export.json and KIND.json
"""

import csv
import io
import json
import os
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as tree
from collections import Counter
from datetime import date, datetime
from decimal import Decimal

import jsonschema

LONGEST_TEXT = 32767  # units of UTF-16 in a cell of a workbook
HEADERS = {
    "batteries": "Name,Capacity (mAh),Discharge rating (C),Charge rating (C),Purchased,Cycles,Charged,Last use",
    "discharges": "Battery,Time,Discharged (mAh),Maximum current (A),Source",
    "models": "Name,Type,Weight,Size,Purchased,Flights,Batteries,Notes,Last update",
    "flights": "Model,Time,Duration (s),Location,Temperature (°C),Batteries,Notes",
    "locations": "Name",
}


def moment(text):
    try:
        return datetime.strptime(text or "", "%a %b %d %H:%M:%S %Y")
    except ValueError:
        return None


def day(text):
    try:
        return datetime.strptime(text or "", "%Y/%m/%d").date()
    except ValueError:
        return None


def seconds(text):
    try:
        return (datetime.strptime(text or "", "%H:%M:%S") - datetime(1900, 1, 1)).seconds
    except ValueError:
        return None


def source(capacity, rating, discharged, current):
    if discharged == 0 and current == 0:
        return "none"
    shown = float("%.2f" % min(capacity * rating / 1000.0, 300.0))
    preset = (min(capacity * 80 // 100, 20000), int(shown * 100.0))
    return "guessed" if (discharged, current) == preset else "entered"


def logbook(path):
    """The logbook as it must be exported to JSON."""
    root = tree.parse(path).getroot()
    result = {"format": "voltbok-export", "version": 1, "locations": [], "batteries": [], "models": []}
    result["locations"] = [node.get("Name") for node in root.findall("Locations/Location")]
    for node in root.findall("Battery"):
        number = lambda key: int(node.findtext(key, "0"))
        entries = []
        for entry in node.findall("Data/Cycle"):
            discharged, current = int(entry.get("Discharged")), int(entry.get("Current"))
            entries.append({
                "time": moment(entry.get("Date")), "discharged_mAh": discharged,
                "max_current_A": Decimal(current) / 100,
                "source": source(number("Capacity"), number("Dischrgrate"), discharged, current)})
        result["batteries"].append({
            "name": node.findtext("Name", ""), "capacity_mAh": number("Capacity"),
            "discharge_rating_C": number("Dischrgrate"), "charge_rating_C": Decimal(number("Chrgrate")) / 10,
            "purchased": day(node.findtext("Purchase")), "cycles": number("Cycles"),
            "charged": node.findtext("Charged") == "1", "last_use": moment(node.findtext("LastUse")),
            "discharges": entries})
    for node in root.findall("Model"):
        number = lambda key: int(node.findtext(key, "0"))
        log = []
        for entry in node.findall("FlightLog/LogData"):
            when, degrees = moment(entry.get("Date")), int(entry.get("Temperature"))
            log.append({
                "time": when, "duration_s": seconds(entry.get("Duration")), "location": entry.get("Location"),
                "temperature_C": degrees - 2**32 if degrees >= 2**31 else degrees, "notes": entry.get("Notes"),
                "batteries": [battery["name"] for battery in result["batteries"]
                              if when and any(when == each["time"] for each in battery["discharges"])]})
        result["models"].append({
            "name": node.findtext("Name", ""), "type": node.findtext("Type", ""), "weight": number("Weight"),
            "size": number("Size"), "purchased": day(node.findtext("Purchase")), "flights": number("Flights"),
            "notes": node.findtext("Notes", ""), "last_update": moment(node.findtext("LastUpdate")),
            "batteries": [name.text or "" for name in node.findall("Battery")], "log": log})
    return result


def tables(book):
    """The rows of all tables, as values."""
    rows = {name: [header.split(",")] for name, header in HEADERS.items()}
    rows["locations"] += [[name] for name in book["locations"]]
    for battery in book["batteries"]:
        *figures, discharges = battery.values()
        rows["batteries"].append(["yes" if value is True else "no" if value is False else value for value in figures])
        rows["discharges"] += [[battery["name"], *entry.values()] for entry in discharges]
    for model in book["models"]:
        name, kind, weight, size, bought, flights, notes, update, batteries, log = model.values()
        rows["models"].append([name, kind, weight, size, bought, flights, "; ".join(batteries), notes, update])
        rows["flights"] += [[name, when, length, place, degrees, "; ".join(used), notes]
                            for when, length, place, degrees, notes, used in map(dict.values, log)]
    return rows


def as_csv(value, style):
    if isinstance(value, str):
        return "'" + value if style == "csv-local" and value.startswith(tuple("=+-@\t\r")) else value
    if isinstance(value, Decimal):
        text = f"{value.normalize():f}"
        return text.replace(".", decimal_sign()) if style == "csv-local" else text
    return "" if value is None else str(value)


def as_json(value):
    if isinstance(value, dict):
        return {key: as_json(each) for key, each in value.items()}
    if isinstance(value, list):
        return [as_json(each) for each in value]
    return value.isoformat() if isinstance(value, (date, datetime)) else value


def as_cell(value):
    """What a workbook holds."""
    if isinstance(value, (date, datetime)):
        if value.year < 1900:
            return str(value)
        days = value.toordinal() - date(1899, 12, 30).toordinal()
        time = value.hour * 3600 + value.minute * 60 + value.second if isinstance(value, datetime) else 0
        return (days if days > 60 else days - 1) + time / 86400
    if isinstance(value, str):
        text = value.replace("\r\n", "\n").replace("\r", "\n")
        return text.encode("utf-16-le")[:2 * LONGEST_TEXT].decode("utf-16-le", "ignore") or None
    return value


def decimal_sign():
    return "," if os.environ.get("LC_ALL", "").startswith("de_DE") else "."


def tell(where, meant, found):
    if meant != found:
        print(f"{where}: {str(meant)[:200]!r} is {str(found)[:200]!r}")


def judge_csv(rows, folder, style):
    tell(f"files of {style}", sorted(name + ".csv" for name in rows), sorted(os.listdir(folder)))
    separator = ";" if style == "csv-local" and decimal_sign() == "," else ","
    for name, table in rows.items():
        with open(os.path.join(folder, name + ".csv"), "rb") as file:
            text = file.read().decode("utf-8")
        tell(f"{style} {name} BOM", style == "csv-local", text.startswith("\ufeff"))
        found = list(csv.reader(io.StringIO(text.removeprefix("\ufeff"), newline=""), delimiter=separator, strict=True))
        tell(f"{style} {name} rows", len(table), len(found))
        for number, (meant, row) in enumerate(zip(table, found)):
            tell(f"{style} {name} {number}", [as_csv(value, style) for value in meant], row)
        # Written again by another writer, it is the same to the byte.
        again = io.StringIO(newline="")
        csv.writer(again, delimiter=separator).writerows(found)
        tell(f"{style} {name} bytes", again.getvalue(), text.removeprefix("\ufeff"))


def spreadsheet(path, *options):
    """The cells of each sheet by row and column, as Gnumeric reads them; a formula is an Ellipsis."""
    gnm = "{http://www.gnumeric.org/v10.dtd}"
    with tempfile.TemporaryDirectory() as folder:
        read = os.path.join(folder, "read.xml")
        subprocess.run(["ssconvert", *options, "-T", "Gnumeric_XmlIO:sax:0", path, read], check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        root = tree.parse(read).getroot()
    sheets = {}
    for sheet in root.iter(gnm + "Sheet"):
        cells = sheets[sheet.findtext(gnm + "Name")] = {}
        for cell in sheet.iter(gnm + "Cell"):
            kind = cell.get("ValueType")
            value = float(cell.text) if kind in ("30", "40") else cell.text if kind else ...
            cells[int(cell.get("Row")), int(cell.get("Col"))] = value
    return sheets


def same(meant, found):
    if isinstance(meant, (int, float, Decimal)) and isinstance(found, float):
        return abs(float(meant) - found) <= 1e-14 * abs(found)
    return meant == found


def judge_cells(where, table, cells):
    tell(f"{where} rows", True, all(row < len(table) for row, _ in cells))
    for number, row in enumerate(table):
        for column, value in enumerate(row):
            found = cells.get((number, column))
            if not same(value, found):
                tell(f"{where} {number}:{column}", value, found)


def judge_workbook(rows, path):
    sheets = spreadsheet(path)
    tell("sheets", list(rows), list(sheets))
    for name, table in rows.items():
        judge_cells(f"xlsx {name}", [[as_cell(value) for value in row] for row in table], sheets[name])


def judge_spreadsheet_of_csv(rows, folder):
    """A spreadsheet takes numbers and dates for such, and nothing for a formula."""
    for name, table in rows.items():
        # Under another ending, for it takes commas only where a name ends in .csv, and no locale's separator.
        with tempfile.NamedTemporaryFile(suffix=".txt") as copy:
            shutil.copy(os.path.join(folder, name + ".csv"), copy.name)
            (cells,) = spreadsheet(copy.name, "-I", "Gnumeric_stf:stf_csvtab", "--import-encoding=UTF-8").values()
        tell(f"formulas of {name}", [], [place for place, value in cells.items() if value is ...])
        tell(f"rows of {name}", True, all(row < len(table) for row, _ in cells))
        for number, row in enumerate(table):
            for column, value in enumerate(row):
                if isinstance(value, (int, Decimal)) and not same(value, cells.get((number, column))):
                    tell(f"{name} {number}:{column}", value, cells.get((number, column)))


def judge_json(book, folder, schema):
    def read(name):
        with open(os.path.join(folder, name + ".json"), encoding="utf-8") as file:
            return json.load(file, parse_float=Decimal)

    def validate(document, kind):
        part = schema if kind == "export" else {"$ref": f"#/$defs/{kind}", "$defs": schema["$defs"]}
        for error in jsonschema.Draft202012Validator(part).iter_errors(document):
            print(f"{kind}.json: {error.message[:200]}")

    book = as_json(book)
    meant = {
        "export": book, "locations": book["locations"], "batteries": book["batteries"], "models": book["models"],
        "discharges": [{"battery": battery["name"], **entry} for battery in book["batteries"]
                       for entry in battery["discharges"]],
        "flights": [{"model": model["name"], **entry} for model in book["models"] for entry in model["log"]]}
    for kind, document in meant.items():
        found = read(kind)
        validate(found, kind)
        tell(f"{kind}.json", document, found)


def main():
    path, folder, schema = sys.argv[1:]
    csv.field_size_limit(sys.maxsize)
    with open(schema, encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    book = logbook(path)
    rows = tables(book)
    for style in ("csv", "csv-local"):
        judge_csv(rows, os.path.join(folder, style), style)
    judge_spreadsheet_of_csv(rows, os.path.join(folder, "csv-local"))
    judge_json(book, folder, schema)
    if os.path.exists(os.path.join(folder, "book.xlsx")):
        judge_workbook(rows, os.path.join(folder, "book.xlsx"))
    print("cells:", sum(len(row) for table in rows.values() for row in table))


main()
