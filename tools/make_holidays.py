#!/usr/bin/env python3
"""Makes the public calendars, and the table that tells which of them a first start shows, from resources/holidays/.

    tools/make_holidays.py --words WORDS.toml --calendars FOLDER --table FILE.cpp SOURCE.toml...

Each source is one calendar; resources/holidays/README.md says what stands in it. A fault in one ends the run with its
file, its line and the reason, and nothing is written.
"""

import argparse
import datetime
import os
import re
import sys

from holiday_info import ALWAYS_FROM, ALWAYS_TO, Describer, packed
from holiday_source import Fault, Source, is_file_name, is_text

LONGEST_NAME = 254  # UTF-16 units
LAST_YEAR = 3999
FARTHEST_FROM_EASTER = 99  # days
WEEKDAYS = ["Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"]
MONTHS = ["January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
          "November", "December"]
LONGEST = [31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31]
ORDINALS = ["first", "second", "third", "fourth", "last"]

# The number of each kind in calendar files, and the keys that it needs.
KINDS = {
    "fixed date": (0, ["date"]),
    "Roman Easter": (1, ["days"]),
    "Orthodox Easter": (2, ["days"]),
    "weekday of month": (3, ["which", "weekday", "month"]),
    "weekday before": (4, ["weekday", "date"]),
    "weekday after": (5, ["weekday", "date"]),
    "moved from weekend": (6, ["date"]),
    "except Sunday": (7, ["date"]),
    "listed days": (0, ["dates"]),
}
CALENDAR_KEYS = {"name": str, "countries": list, "first_start": list, "info": str, "remarks": str,
                 "checked": datetime.date, "extends": str, "without": list, "since": datetime.date,
                 "from": datetime.date, "source": str, "days": dict, "rule": list}
RULE_KEYS = {"name", "kind", "public", "date", "dates", "days", "which", "weekday", "month", "from", "to", "moved",
             "source"}
LOCALE = re.compile(r"(?:[a-z]{2,3}_)?[A-Z]{2}")


def is_date(value):
    """Returns whether a value is a date without a time that a rule can hold."""
    return type(value) is datetime.date and value.year <= LAST_YEAR


class RuleReader:
    """Turns one rule of a source into the records of a calendar file, in their order.

    What the rule leaves out, the calendar gives: its 'from' and its 'source'.
    """

    def __init__(self, source, number, rule):
        self.source, self.number = source, number
        given = {key: source.data[key] for key in ("from", "source") if key in source.data}
        if rule.get("kind") == "listed days":
            given.pop("from", None)
        self.rule = {**given, **rule}

    def fault(self, key, reason):
        self.source.fault(key, reason, self.number)

    def text(self, key):
        value = self.rule.get(key)
        if value is None:
            self.fault(None, f"the rule has no '{key}'")
        if not is_text(value):
            self.fault(key, f"'{key}' is a text of one line with single blanks and none at its ends")
        return value

    def choice(self, key, words):
        value = self.text(key)
        if value not in words:
            self.fault(key, f"'{key}' is one of: {', '.join(words)}")
        return words.index(value) + 1

    def date_of_year(self, value, key):
        found = re.fullmatch(r"(\d{1,2}) ([A-Z][a-z]+)", value)
        if not found or found[2] not in MONTHS:
            self.fault(key, "a date of the year is written like \"14 July\"")
        month, day = MONTHS.index(found[2]) + 1, int(found[1])
        if not 1 <= day <= LONGEST[month - 1]:
            self.fault(key, f"{found[2]} has no day {day}")
        return {"month": month, "day": day}

    def bound(self, key, otherwise):
        value = self.rule.get(key)
        if value is None:
            return otherwise
        if not is_date(value):
            self.fault(key, f"'{key}' is a date such as 1981-10-02")
        return packed(value)

    def numbers(self):
        """Returns the fields that the kind needs."""
        kind = self.text("kind")
        if kind not in KINDS:
            self.fault("kind", f"'kind' is one of: {', '.join(KINDS)}")
        number, keys = KINDS[kind]
        for key in {key for _, others in KINDS.values() for key in others} - set(keys):
            if key in self.rule:
                self.fault(key, f"a rule of the kind '{kind}' has no '{key}'")
        fields = {"type": number}
        if "date" in keys:
            fields.update(self.date_of_year(self.text("date"), "date"))
        if "days" in keys:
            fields["day"] = self.rule.get("days")
            if type(fields["day"]) is not int or abs(fields["day"]) > FARTHEST_FROM_EASTER:
                self.fault("days", f"'days' is the distance from Easter Sunday, at most {FARTHEST_FROM_EASTER}, negative before it")
        if "weekday" in keys:
            fields["weekday"] = self.choice("weekday", WEEKDAYS)
            fields["weeknum"] = 1
        if "which" in keys:
            fields["weeknum"] = self.choice("which", ORDINALS)
            fields["month"] = self.choice("month", MONTHS)
        elif "weekday" in keys and fields["day"] == 1:
            self.fault("date", "this kind cannot count from the 1st of a month; take the 2nd or the day before")
        return fields

    def records(self):
        for key in self.rule:
            if key not in RULE_KEYS:
                self.fault(key, f"a rule has no key '{key}'")
        name = self.text("name")
        if len(name.encode("utf-16-le")) // 2 > LONGEST_NAME:
            self.fault("name", f"'name' is longer than {LONGEST_NAME} characters")
        self.text("source")
        public = self.rule.get("public", True)
        if not isinstance(public, bool):
            self.fault("public", "'public' is true or false")
        if self.rule.get("kind") == "listed days":
            return [{"public": int(public), "name": name, "type": 0, "month": date.month, "day": date.day,
                     "ymdFrom": packed(date), "ymdTo": packed(date)} for date in self.listed()]
        if public and "from" not in self.rule:
            self.fault(None, "a holiday needs a 'from', the day of its law")
        first, last = self.bound("from", ALWAYS_FROM), self.bound("to", ALWAYS_TO)
        if first > last:
            self.fault("to", "'to' lies before 'from'")
        common = {"public": int(public), "name": name}
        fields = self.numbers()
        records = []
        for year, date in self.moved(first, last):
            if first // 10000 < year:
                records.append({**common, **fields, "ymdFrom": first, "ymdTo": (year - 1) * 10000 + 1231})
            records.append({**common, "type": 0, "month": date.month, "day": date.day,
                            "ymdFrom": max(first, year * 10000 + 101), "ymdTo": min(last, year * 10000 + 1231)})
            first = (year + 1) * 10000 + 101
        if first <= last:
            records.append({**common, **fields, "ymdFrom": first, "ymdTo": last})
        return records

    def dates(self, key):
        dates = self.rule.get(key, [])
        if not isinstance(dates, list) or not all(map(is_date, dates)):
            self.fault(key, f"'{key}' is a list of dates such as 2020-06-07")
        return dates

    def listed(self):
        """Returns the dates of a rule that lists its days."""
        for key in ("from", "to", "moved", *(key for _, keys in KINDS.values() for key in keys if key != "dates")):
            if key in self.rule:
                self.fault(key, f"a rule of the kind 'listed days' has no '{key}'")
        dates = self.dates("dates")
        if not dates or dates != sorted(set(dates)):
            self.fault("dates", "'dates' has each date once, in their order")
        return dates

    def moved(self, first, last):
        """Returns the years in which the day is moved, with the date of each."""
        dates = self.dates("moved")
        years = [date.year for date in dates]
        if years != sorted(set(years)):
            self.fault("moved", "'moved' has one date for a year, in the order of years")
        if dates and not first <= packed(dates[0]) <= packed(dates[-1]) <= last:
            self.fault("moved", "'moved' has a date outside 'from' and 'to'")
        return zip(years, dates)


class Calendar:
    """Checks one source and returns its calendar: the rules of the calendar that it extends and its own.

    A rule is a pair: its records and the source of its dates.
    """

    def __init__(self, source, calendars):
        data = source.data
        for key, value in data.items():
            if key not in CALENDAR_KEYS:
                source.fault(key, f"a calendar has no key '{key}'")
            if not isinstance(value, CALENDAR_KEYS[key]) or CALENDAR_KEYS[key] is datetime.date and not is_date(value):
                kinds = {str: "text", list: "list", dict: "table", datetime.date: "date"}
                source.fault(key, f"'{key}' is no {kinds[CALENDAR_KEYS[key]]}")
        self.source = source
        self.name = data.get("name", "")
        if not is_file_name(self.name):
            source.fault("name", "the calendar needs a 'name' that can be the name of a file")
        base = None
        if "extends" in data:
            base = calendars.get(data["extends"])
            if base is None:
                source.fault("extends", f"there is no source '{data['extends']}.toml', or it extends another one")
        described = data if "info" in data or not base else {**base.source.data, **data}
        self.info, self.remarks = described.get("info", ""), described.get("remarks")
        if not is_text(self.info):
            source.fault("info", "the calendar needs an 'info', a text of one line with single blanks and none at its ends")
        if self.remarks is not None and not is_text(self.remarks):
            source.fault("remarks", "'remarks' is a text of one line with single blanks and none at its ends")
        self.checked = data.get("checked", base.checked if base else None)
        self.locales = data.get("first_start", [])
        for locale in self.locales:
            if not isinstance(locale, str) or not LOCALE.fullmatch(locale):
                source.fault("first_start", "'first_start' lists locales such as \"FR\" or \"fr_CH\"")
        self.countries = data.get("countries", [])
        for country in self.countries:
            if not isinstance(country, str) or not re.fullmatch(r"[A-Z]{2}(-[A-Z0-9]{1,3})?", country):
                source.fault("countries", "'countries' lists codes such as \"FR\" or \"FR-67\"")
        self.rules = self.inherited(base, data.get("without", []), data.get("since"))
        for number, rule in enumerate(data.get("rule", [])):
            reader = RuleReader(source, number, rule)
            self.rules.append((reader.records(), reader.rule["source"]))
        self.refuse_doubles(len(data.get("rule", [])))
        self.rules += self.named_days(data.get("days", {}))
        # Public days first, those of the extended calendar before the own ones.
        self.records = sorted((record for records, _ in self.rules for record in records),
                              key=lambda record: -record["public"])
        if not self.records:
            source.fault(None, "the calendar has no rules")

    def refuse_doubles(self, own):
        """Fails if one of the calendar's own rules says again what a rule before it says on the same days."""
        seen = []
        for place, (records, _) in enumerate(self.rules):
            for record in records:
                days = {key: value for key, value in record.items() if key not in ("ymdFrom", "ymdTo")}
                if any(days == other and record["ymdFrom"] <= last and first <= record["ymdTo"]
                       for other, first, last in seen):
                    number = place - (len(self.rules) - own)
                    self.source.fault("name", f"'{record['name']}' is marked twice on the same days",
                                      number if number >= 0 else None)
                seen.append((days, record["ymdFrom"], record["ymdTo"]))

    def named_days(self, months):
        """Returns the rules of a calendar that names every day of the year: events, no holidays."""
        if not months:
            return []
        if list(months) != MONTHS:
            self.source.fault("January", "'days' has a list of names for each month, from January on")
        data = self.source.data
        if "from" not in data or "source" not in data:
            self.source.fault(None, "a calendar with 'days' needs a 'from' and a 'source'")
        rules = []
        for month, names in enumerate(months.values(), 1):
            key = MONTHS[month - 1]
            if not isinstance(names, list) or len(names) != LONGEST[month - 1] or not all(map(is_text, names)):
                self.source.fault(key, f"{key} needs {LONGEST[month - 1]} names")
            rules += [([{"public": 0, "name": name, "type": 0, "month": month, "day": day,
                         "ymdFrom": packed(data["from"]), "ymdTo": ALWAYS_TO}], data["source"])
                      for day, name in enumerate(names, 1)]
        return rules

    def inherited(self, base, without, since):
        """Returns the rules of the extended calendar but those left out by their names, cut to the days from 'since' on."""
        rules = base.rules if base else []
        for name in without:
            if not any(records[0]["name"] == name for records, _ in rules):
                self.source.fault("without", f"the extended calendar has no rule '{name}'")
        first = packed(since) if since else ALWAYS_FROM
        kept = []
        for records, source in rules:
            cut = [{**record, "ymdFrom": max(record["ymdFrom"], first)} for record in records
                   if record["ymdTo"] >= first and record["name"] not in without]
            if cut:
                kept.append((cut, source))
        return kept


FIELDS = ["type", "public", "month", "day", "weekday", "weeknum", "ymdFrom", "ymdTo", "name"]
ENTITIES = [("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"), ('"', "&quot;"), ("'", "&#39;")]


def element(tag, value):
    text = str(value)
    for character, entity in ENTITIES:
        text = text.replace(character, entity)
    return f"<{tag}>{text}</{tag}>"


def calendar_bytes(calendar, describer):
    """Returns a calendar file, exactly as the program would write it."""
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', element("info", describer.text(calendar))]
    lines += ["<CalendarParams>", "</CalendarParams>", "<CalendarEvents>", "<dayEvents>"]
    for record in calendar.records:
        lines.append("\t<event>")
        lines += ["\t\t" + element(field, record.get(field, 0)) for field in FIELDS]
        lines.append("\t</event>")
    lines += ["</dayEvents>", "</CalendarEvents>", ""]
    return "\r\n".join(lines).encode("utf-8")


def literal(text):
    """Returns a UTF-16 literal of C++."""
    return 'u"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def table_bytes(calendars):
    rows = {}
    for calendar in calendars:
        for locale in calendar.locales:
            if locale in rows:
                calendar.source.fault("first_start", f"{locale} is answered by '{rows[locale]}' already")
            rows[locale] = calendar.name
    lines = ["// Made from resources/holidays/ by the build.", '#include "resources/country_calendars.h"', "",
             "namespace orbisol {", "",
             "std::u16string_view CountryCalendar(std::u16string_view locale) {"]
    lines += [f"  if (locale == {literal(locale)}) return {literal(name)};" for locale, name in sorted(rows.items())]
    lines += ["  return {};", "}", "", "}  // namespace orbisol", ""]
    return "\n".join(lines).encode("utf-8")


def read_all(paths):
    """Returns the calendars of the sources, in their order. Those that extend another one are read last."""
    sources = [Source(path) for path in paths]
    found = {}
    for source in sorted(sources, key=lambda source: "extends" in source.data):
        calendar = Calendar(source, {} if "extends" not in source.data else
                            {stem: base for stem, base in found.items() if "extends" not in base.source.data})
        if any(calendar.name.casefold() == other.name.casefold() for other in found.values()):
            source.fault("name", f"there is another calendar named '{calendar.name}'")
        for country in calendar.countries:
            if any(country in other.countries for other in found.values()):
                source.fault("countries", f"there is another calendar of {country}")
        found[source.stem] = calendar
    return [found[source.stem] for source in sources]


def main(arguments):
    parser = argparse.ArgumentParser(description="Makes the public calendars from their sources.")
    parser.add_argument("--words", required=True, help="the words of the descriptions")
    parser.add_argument("--calendars", required=True, help="the folder of the calendar files")
    parser.add_argument("--table", required=True, help="the C++ source of the table of first starts")
    parser.add_argument("sources", nargs="+")
    options = parser.parse_args(arguments)
    try:
        calendars = read_all(options.sources)
        describer = Describer(Source(options.words).data)
        files = {os.path.join(options.calendars, calendar.name + ".xml"): calendar_bytes(calendar, describer)
                 for calendar in calendars}
        files[options.table] = table_bytes(calendars)
    except (Fault, OSError) as fault:
        print(fault, file=sys.stderr)
        return 1
    os.makedirs(options.calendars, exist_ok=True)
    for path, wanted in files.items():
        with open(path, "wb") as file:
            file.write(wanted)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
