#!/usr/bin/env python3
"""Writes the public calendars of resources/legals/ from the tables below.

    tools/make_legals.py [--check]

With --check nothing is written: ends with 1 when a file is not what the tables say.

A row is a name, a kind with its numbers, and the first and last date on which the rule holds: the
day its law was made, so that nothing is marked before its time.
"""

import datetime
import os
import sys

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "resources", "legals")

ALWAYS = 39991231
SUNDAY = 7
LAST = 5


def fixed(month, day):
    return {"type": 0, "month": month, "day": day}


def easter(days):
    return {"type": 1, "day": days}


def nth_weekday(month, weekday, nth):
    return {"type": 3, "month": month, "weekday": weekday, "weeknum": nth}


def public(name, kind, first, last=ALWAYS):
    return {"public": 1, "name": name, "ymdFrom": first, "ymdTo": last, **kind}


def personal(name, kind, first, last=ALWAYS):
    return {**public(name, kind, first, last), "public": 0}


FRENCH_HOLIDAYS = [
    public("Jour de l'an", fixed(1, 1), 18100323),
    public("Lundi de Pâques", easter(1), 18860308),
    public("Fête du Travail", fixed(5, 1), 19470430),
    public("Victoire 1945", fixed(5, 8), 19530320, 19590411),
    public("Victoire 1945", fixed(5, 8), 19650508, 19650508),
    public("Victoire 1945", fixed(5, 8), 19811002),
    public("Ascension", easter(39), 18020419),
    public("Lundi de Pentecôte", easter(50), 18860308),
    public("Fête nationale", fixed(7, 14), 18800706),
    public("Assomption", fixed(8, 15), 18020419),
    public("Toussaint", fixed(11, 1), 18020419),
    public("Armistice 1918", fixed(11, 11), 19221024),
    public("Noël", fixed(12, 25), 18020419),
]

FRENCH_LAWS = (
    "Ascension, Assomption, Toussaint et Noël : décret du 29 germinal an X (19 avril 1802). "
    "Jour de l'an : avis du Conseil d'État du 23 mars 1810. "
    "Fête nationale : loi du 6 juillet 1880. "
    "Lundis de Pâques et de Pentecôte : loi du 8 mars 1886. "
    "Armistice 1918 : loi du 24 octobre 1922. "
    "Fête du Travail : lois du 30 avril 1947 et du 29 avril 1948. "
    "Victoire 1945 : loi du 20 mars 1953, supprimée par le décret du 11 avril 1959, "
    "rétablie pour 1965 par le décret du 1er avril 1965 et pour toujours par la loi du 2 octobre 1981."
)
FRENCH_EVENTS_NOTE = (
    "Événements non fériés : Fête de Jeanne d'Arc (loi du 10 juillet 1920), "
    "Fête des mères (loi du 24 mai 1950, dates connues jusqu'en 2050), Fête des pères, Fête de la musique."
)
ALSACE_HOLIDAYS = [
    public("Vendredi saint", easter(-2), 18920816),
    public("Saint-Étienne", fixed(12, 26), 18920816),
]
ALSACE_LAWS = "Vendredi saint et Saint-Étienne, en Alsace et en Moselle : ordonnance du 16 août 1892."


def easter_sunday(year):
    """Gregorian. J. Meeus, Astronomical Algorithms, chapter 8."""
    a, b, c = year % 19, year // 100, year % 100
    d, e = b // 4, b % 4
    g = (8 * b + 13) // 25
    h = (19 * a + b - d - g + 15) % 30
    i, k = c // 4, c % 4
    n = (32 + 2 * e + 2 * i - h - k) % 7
    m = (a + 11 * h + 22 * n) // 451
    month, day = divmod(h + n - 7 * m + 114, 31)
    return datetime.date(year, month, day + 1)


def last_sunday_of_may(year):
    last = datetime.date(year, 5, 31)
    return last - datetime.timedelta((last.weekday() + 1) % 7)


def mothers_days(first_year, last_year):
    """The last Sunday of May, but the first of June where that is Whit Sunday: no kind of rule says so.
    Spans of years under the plain rule, with a single date between them."""
    rows = []
    name = "Fête des mères"
    since = 19500524
    for year in range(first_year, last_year + 1):
        sunday = last_sunday_of_may(year)
        if sunday != easter_sunday(year) + datetime.timedelta(49):
            continue
        if since // 10000 < year:
            rows.append(personal(name, nth_weekday(5, SUNDAY, LAST), since, (year - 1) * 10000 + 1231))
        june = sunday + datetime.timedelta(7)
        rows.append(personal(name, fixed(june.month, june.day), year * 10000 + 101, year * 10000 + 1231))
        since = (year + 1) * 10000 + 101
    if since // 10000 <= last_year:
        rows.append(personal(name, nth_weekday(5, SUNDAY, LAST), since, last_year * 10000 + 1231))
    return rows


FRENCH_EVENTS = [
    personal("Fête de Jeanne d'Arc", nth_weekday(5, SUNDAY, 2), 19200710),
    *mothers_days(1950, 2050),
    personal("Fête des pères", nth_weekday(6, SUNDAY, 3), 19520101),
    personal("Fête de la musique", fixed(6, 21), 19820621),
]

FRANCE = (
    f"Jours fériés légaux de la France. {FRENCH_LAWS} {FRENCH_EVENTS_NOTE}",
    FRENCH_HOLIDAYS + FRENCH_EVENTS,
)

# File name: what the calendar says about itself, and its rules.
CALENDARS = {
    "France": FRANCE,
    "France (Alsace-Moselle)": (
        f"Jours fériés légaux de l'Alsace et de la Moselle. {ALSACE_LAWS} {FRENCH_LAWS} {FRENCH_EVENTS_NOTE}",
        FRENCH_HOLIDAYS + ALSACE_HOLIDAYS + FRENCH_EVENTS,
    ),
    # For a first start in this language where the country is not known.
    "fr_public": FRANCE,
}

FIELDS = ["type", "public", "month", "day", "weekday", "weeknum", "ymdFrom", "ymdTo", "name"]
ENTITIES = [("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"), ('"', "&quot;"), ("'", "&#39;")]


def element(tag, value):
    text = str(value)
    for character, entity in ENTITIES:
        text = text.replace(character, entity)
    return f"<{tag}>{text}</{tag}>"


def file_bytes(info, rules):
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', element("info", info)]
    lines += ["<CalendarParams>", "</CalendarParams>", "<CalendarEvents>", "<dayEvents>"]
    for rule in rules:
        lines.append("\t<event>")
        lines += ["\t\t" + element(field, rule.get(field, 0)) for field in FIELDS]
        lines.append("\t</event>")
    lines += ["</dayEvents>", "</CalendarEvents>", ""]
    return "\r\n".join(lines).encode("utf-8")


def main(arguments):
    stale = 0
    for name, (info, rules) in CALENDARS.items():
        path = os.path.join(FOLDER, name + ".xml")
        wanted = file_bytes(info, rules)
        if arguments == ["--check"]:
            with open(path, "rb") as file:
                if file.read() != wanted:
                    print(f"{name}.xml is not what tools/make_legals.py writes")
                    stale = 1
        else:
            with open(path, "wb") as file:
                file.write(wanted)
    return stale


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
