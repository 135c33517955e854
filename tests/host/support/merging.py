# SPDX-License-Identifier: GPL-3.0-or-later
"""Merges logbooks by the rules of the manual, by nothing of the program. Reads a list of cases
{"ours", "theirs", "base" or null} and writes what comes of each: the logbook, in the order that the program has,
and the conflicts."""
import collections
import json
import sys

COUNTERS = {"batteries": "cycles", "models": "flights"}
LISTS = ("entries", "batteries")  # of a record; the latter of a model
WORDS = {"batteries": ("battery", "discharge"), "models": ("model", "flight")}


def key_of_entry(entry):
    return entry["time"] if entry["time"] is not None else json.dumps(entry, sort_keys=True)


def by_occurrence(records):
    seen = collections.Counter()
    keyed = {}
    for record in records:
        keyed[(record["name"], seen[record["name"]])] = record
        seen[record["name"]] += 1
    return keyed


def by_key(entries):
    groups = collections.defaultdict(list)
    for entry in entries:
        groups[key_of_entry(entry)].append(entry)
    return groups


class Side:
    """What is taken from theirs into ours."""

    def __init__(self):
        self.conflicts = []
        self.news = False

    def fields(self, ours, theirs, base, skipped, word, name):
        merged = dict(ours)
        for field, value in theirs.items():
            if field in skipped or value == ours[field]:
                continue
            if base is not None and value == base[field]:
                continue
            if base is not None and ours[field] == base[field]:
                merged[field] = value
                self.news = True
            else:
                self.conflicts.append([word, name, field, ours[field], value])
        return merged

    def names(self, ours, theirs, base):
        gone = set(base) - set(theirs)
        merged = [name for name in ours if name not in gone]
        here = collections.Counter(ours)
        for name, count in collections.Counter(theirs).items():
            wanted = 0 if name in base and name not in here else max(0, count - here[name])
            merged += [name] * wanted
        self.news |= merged != ours
        return merged

    def entries(self, ours, theirs, base, word, name):
        here, there, before = by_key(ours), by_key(theirs), by_key(base)
        merged = []
        for entry in ours:
            key = key_of_entry(entry)
            if len(here[key]) > 1 or len(there.get(key, [])) > 1 or len(before.get(key, [])) > 1:
                raise SystemExit("The cases must tell all entries apart.")
            other = there.get(key, [None])[0]
            old = before.get(key, [None])[0]
            if other is not None:
                merged.append(self.fields(entry, other, old, ("time",), word, name))
            elif old == entry:
                self.news = True
            else:
                merged.append(entry)
        for entry in theirs:
            key = key_of_entry(entry)
            if key not in here and before.get(key, [None])[0] != entry:
                merged.append(entry)
                self.news = True
        return merged

    def record(self, kind, ours, theirs, base):
        word, entry_word = WORDS[kind]
        merged = self.fields(ours, theirs, base, LISTS + (COUNTERS[kind],), word, ours["name"])
        if kind == "models":
            merged["batteries"] = self.names(ours["batteries"], theirs["batteries"], base["batteries"] if base else [])
        merged["entries"] = self.entries(ours["entries"], theirs["entries"], base["entries"] if base else [],
                                         entry_word, ours["name"])
        return merged

    def logbook(self, ours, theirs, base, count):
        merged = {"locations": self.names(ours["locations"], theirs["locations"], base["locations"])}
        for kind in ("batteries", "models"):
            here, there, before = (by_occurrence(side[kind]) for side in (ours, theirs, base))
            merged[kind] = []
            for key, record in here.items():
                if key in there:
                    one = self.record(kind, record, there[key], before.get(key))
                    count(self, kind, one, record, there[key], before.get(key))
                    merged[kind].append(one)
                elif before.get(key) == record:
                    self.news = True
                else:
                    merged[kind].append(record)
            for key, record in there.items():
                if key not in here and before.get(key) != record:
                    merged[kind].append(record)
                    self.news = True
        return merged


def news_of_record(kind, ours, theirs, base):
    side = Side()
    side.record(kind, ours, theirs, base)
    return side.news


def news_of_logbook(ours, theirs, base):
    side = Side()
    side.logbook(ours, theirs, base, lambda *_: None)
    return side.news


def merge(ours, theirs, base):
    base = base or {"locations": [], "batteries": [], "models": []}
    all_news = news_of_logbook(theirs, ours, base), news_of_logbook(ours, theirs, base)

    def count(side, kind, merged, here, there, before):
        field = COUNTERS[kind]
        news = news_of_record(kind, there, here, before), news_of_record(kind, here, there, before)
        if news == (False, False):
            news = all_news
        if news == (True, True) and before is not None:
            merged[field] = max(0, here[field] + there[field] - before[field])
        elif news == (False, True):
            merged[field] = there[field]
        elif news != (True, False):
            one = side.fields({field: here[field]}, {field: there[field]}, before, (), WORDS[kind][0], here["name"])
            merged[field] = one[field]

    side = Side()
    return {"merged": side.logbook(ours, theirs, base, count), "conflicts": side.conflicts}


json.dump([merge(case["ours"], case["theirs"], case["base"]) for case in json.load(sys.stdin)], sys.stdout)
