#!/usr/bin/env python3
"""Checks that every kind of rule becomes its record, and that a fault in a source is reported with its line."""

import contextlib
import io
import os
import re
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
import make_holidays  # noqa: E402

WORDS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "resources", "texts", "holiday_info.toml")
HEAD = 'name = "Here"\ninfo = "Laws & <days>"\nfirst_start = ["XX"]\nfrom = 1900-01-01\n'
RULE = '[[rule]]\nname = "Day"\nsource = "law"\n'

# Kinds, each with its record in the order of the file: type, month, day, weekday, weeknum.
KINDS = [
    ('"fixed date"\ndate = "29 February"', [0, 2, 29, 0, 0]),
    ('"Roman Easter"\ndays = -2', [1, 0, -2, 0, 0]),
    ('"Orthodox Easter"\ndays = 50', [2, 0, 50, 0, 0]),
    ('"weekday of month"\nwhich = "last"\nweekday = "Sunday"\nmonth = "May"', [3, 5, 0, 7, 5]),
    ('"weekday before"\nweekday = "Monday"\ndate = "24 May"', [4, 5, 24, 1, 1]),
    ('"weekday after"\nweekday = "Thursday"\ndate = "5 September"', [5, 9, 5, 4, 1]),
    ('"moved from weekend"\ndate = "25 December"', [6, 12, 25, 0, 0]),
    ('"except Sunday"\ndate = "1 July"', [7, 7, 1, 0, 0]),
]

# A name for each day of the year.
YEAR = 'source = "use"\n[days]\n' + "".join(
    f"{month} = {[f'{month} {day}' for day in range(1, days + 1)]}\n"
    for month, days in zip(make_holidays.MONTHS, make_holidays.LONGEST))

# Whole sources, each with the line and the reason of its refusal.
FAULTS = [
    (HEAD + "rule = [\n", ":5: Invalid value"),
    (HEAD + "colour = 1\n" + RULE, ":5: a calendar has no key"),
    (HEAD + RULE.replace("]]", "]]  # the first") + 'days = 1\nkind = "weekly"\n', ":9: 'kind' is one of"),
    (HEAD + 'rule = [{name = "Day"}]\n', ":5: each rule begins with a line"),
    (HEAD + 'remarks = "a  b"\n' + RULE, ":5: 'remarks' is a text"),
    (HEAD.replace("Here", ".."), ":1: the calendar needs a 'name'"),
    (HEAD.replace("from", "since") + RULE, ":5: a holiday needs a 'from'"),
    (HEAD.replace("1900", "4000") + RULE, ":4: 'from' is no date"),
    (HEAD, ":1: the calendar has no rules"),
    (HEAD.replace("XX", "France") + RULE, ":3: 'first_start'"),
    (HEAD + RULE, ":5: the rule has no 'kind'"),
    (HEAD + RULE + 'kind = "fixed date"\ndate = "31 June"\n', ":9: June has no day 31"),
    (HEAD + RULE + 'kind = "fixed date"\ndate = "1 May"\ndays = 3\n', ":10: a rule of the kind 'fixed date'"),
    (HEAD + RULE + 'kind = "weekday after"\nweekday = "Monday"\ndate = "1 May"\n', ":10: this kind cannot count"),
    (HEAD + RULE + 'kind = "Roman Easter"\ndays = 100\n', ":9: 'days' is the distance"),
    (HEAD + RULE + 'kind = "Roman Easter"\ndays = 1\nto = 4000-01-01\n', ":10: 'to' is a date"),
    (HEAD + (RULE + 'kind = "Roman Easter"\ndays = 1\n') * 2, ":11: 'Day' is marked twice"),
    (HEAD + RULE + 'kind = "Roman Easter"\ndays = 1\nfrom = 2000-01-01\nto = 1999-12-31\n', ":11: 'to' lies before"),
    (HEAD + RULE + 'kind = "Roman Easter"\ndays = 1\nto = 2000-01-01\nmoved = [2001-05-05]\n', ":11: 'moved' has a"),
    (HEAD + RULE + 'kind = "Roman Easter"\ndays = 1\nmoved = [2001-05-05, 2001-05-06]\n', ":10: 'moved' has one"),
    (HEAD + RULE.replace("Day", "x" * 255) + 'kind = "Roman Easter"\ndays = 1\n', ":6: 'name' is longer"),
    ('extends = "YY"\n' + HEAD, ":1: there is no source 'YY.toml'"),
    (HEAD + RULE.replace("Day", "D  ay") + 'kind = "Roman Easter"\ndays = 1\n', ":6: 'name' is a text of one line with single"),
    (HEAD + RULE + 'kind = "listed days"\ndates = [2001-05-05, 2000-05-05]\n', ":9: 'dates' has each date once"),
    (HEAD + RULE + 'kind = "listed days"\ndates = [2001-05-05]\nto = 2001-05-05\n', ":10: a rule of the kind 'listed"),
    (HEAD + 'source = "use"\n[days]\nMay = ["A"]\n', ":1: 'days' has a list of names for each"),
    (HEAD + YEAR.replace("'December 31'", "'December 31', 'y'"), ":18: December needs 31 names"),
]


def made_of(sources):
    """Returns (exit code, error text, files made) for sources by name."""
    with tempfile.TemporaryDirectory() as folder:
        paths = []
        for name, text in sources.items():
            paths.append(os.path.join(folder, name + ".toml"))
            with open(paths[-1], "w", encoding="utf-8") as file:
                file.write(text)
        out = os.path.join(folder, "out")
        os.mkdir(out)
        said = io.StringIO()
        with contextlib.redirect_stderr(said):
            code = make_holidays.main(["--words", WORDS, "--calendars", out, "--table", os.path.join(out, "table"), *paths])
        made = {}
        for name in os.listdir(out):
            with open(os.path.join(out, name), encoding="utf-8", newline="") as file:
                made[name] = file.read()
        return code, said.getvalue(), made


class MakeHolidaysTest(unittest.TestCase):
    def test_every_kind_becomes_its_record(self):
        for kind, fields in KINDS:
            code, said, made = made_of({"XX": HEAD + RULE + "kind = " + kind + "\n"})
            self.assertEqual((code, said), (0, ""))
            number, month, day, weekday, weeknum = fields
            for tag, value in [("type", number), ("public", 1), ("month", month), ("day", day), ("weekday", weekday),
                               ("weeknum", weeknum), ("ymdFrom", 19000101), ("ymdTo", 39991231)]:
                self.assertIn(f"<{tag}>{value}</{tag}>\r\n", made["Here.xml"])
            self.assertIn("<info>Laws &amp; &lt;days&gt;\u2029\u2029Day (depuis le 1er janvier 1900)\u00a0: law.</info>", made["Here.xml"])
            self.assertIn('if (locale == u"XX") return u"Here";', made["table"])

    def test_faults_are_told_with_their_line_and_nothing_is_made(self):
        for text, complaint in FAULTS:
            code, said, made = made_of({"XX": text})
            self.assertEqual((code, made), (1, {}), text)
            self.assertIn("XX.toml" + complaint, said)

    def test_a_calendar_gives_its_rules_what_they_leave_out_and_tells_their_laws(self):
        day = '[[rule]]\nname = "Day"\nkind = "fixed date"\ndate = "1 May"\n'
        listed = '[[rule]]\nname = "Once"\nkind = "listed days"\ndates = [1950-06-02, 1951-06-03]\n'
        event = day.replace("Day", "Eve") + 'public = false\nto = 1999-12-31\nsource = "use ; n° 3"\n'
        head = HEAD.replace("1900-01-01", "1949-05-23") + 'checked = 2026-11-22\nsource = "law"\nremarks = "Not all."\n'
        made = made_of({"XX": head + event + day + "moved = [1960-05-02]\n" + listed})[2]["Here.xml"]
        validity = re.findall(r"<ymdFrom>(\d+)</ymdFrom>\r\n\t\t<ymdTo>(\d+)</ymdTo>\r\n\t\t<name>(\w+)</name>", made)
        self.assertEqual([" ".join(one) for one in validity], [
            "19490523 19591231 Day", "19600101 19601231 Day", "19610101 39991231 Day",
            "19500602 19500602 Once", "19510603 19510603 Once", "19490523 19991231 Eve"])
        info = ["", "Day (depuis le 23 mai 1949)\u00a0: law.", "Once (les 2 juin 1950 et 3 juin 1951)\u00a0: law.", "",
                "Événements non fériés\u00a0:", "Eve (du 23 mai 1949 au 31 décembre 1999)\u00a0: use\u00a0; n°\u00a03.", "",
                "Not all.", "", "Dernière vérification\u00a0: 22 novembre 2026.</info>"]
        self.assertIn("\u2029".join(info), made)

    def test_a_calendar_takes_the_rules_of_another_but_some_and_from_a_day_on(self):
        rules = "".join(f'[[rule]]\nname = "{name}"\nkind = "fixed date"\ndate = "1 May"\nto = {to}-12-31\n'
                        for name, to in [("Old", 1900), ("Left", 2000), ("Kept", 2000)])
        base = HEAD.replace("1900-01-01", "1802-04-19") + 'source = "law"\n' + rules
        other = 'extends = "XX"\nwithout = ["Left"]\nsince = 1946-03-19\nname = "There"\n'
        made = made_of({"XX": base, "YY": other})[2]["There.xml"]
        self.assertEqual(made.count("<event>"), 1)
        self.assertIn("<ymdFrom>19460319</ymdFrom>\r\n\t\t<ymdTo>20001231</ymdTo>\r\n\t\t<name>Kept</name>", made)
        self.assertIn("YY.toml:2: the extended", made_of({"XX": base, "YY": other.replace("Left", "Lost")})[1])

    def test_every_day_of_a_year_can_be_named(self):
        made = made_of({"XX": HEAD + YEAR})[2]["Here.xml"]
        self.assertEqual(made.count("<public>0</public>"), 366)
        self.assertTrue("366 jours (depuis le 1er janvier 1900)\u00a0: use.</info>" in made)

    def test_no_two_calendars_share_a_name_a_country_or_a_locale(self):
        text = 'countries = ["XX"]\n' + HEAD + RULE + 'kind = "Roman Easter"\ndays = 1\n'
        self.assertIn("YY.toml:2: there is another", made_of({"XX": text, "YY": text.replace("Here", "HERE")})[1])
        other = text.replace("Here", "There")
        self.assertIn("YY.toml:1: there is another", made_of({"XX": text, "YY": other})[1])
        other = other.replace("s = [\"XX", "s = [\"ZZ")
        self.assertIn("YY.toml:4: XX is answered", made_of({"XX": text, "YY": other})[1])


if __name__ == "__main__":
    unittest.main()
