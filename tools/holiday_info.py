"""Tells in the user's language, from the rules of a public calendar, which laws its days come from.

The words stand in resources/texts/holiday_info.toml. A rule is a pair: its records and the source of its dates.
"""

import re

ALWAYS_FROM, ALWAYS_TO = -39991231, 39991231
LONGEST_LIST = 20  # names that a description lists; of more it tells the number
MOST_DAYS = 4  # of a rule that lists its days; likewise
LINE, SECTION = "\u2029", "\u2029\u2029"  # a text with these is still one line of the calendar file
UNBREAKABLE = re.compile(r" (?=[;:?!»])|(?<=[«°]) ")


def packed(date):
    return (date.year * 100 + date.month) * 100 + date.day


class Describer:
    """Tells in the user's language which laws the rules of a calendar come from."""

    def __init__(self, words):
        self.words = words

    def date(self, number):
        day = number % 100
        return self.words["first_day" if day == 1 else "day"].format(
            day=day, month=self.words["months"][number // 100 % 100 - 1], year=number // 10000)

    def validity(self, records):
        """Returns when the records of one rule hold; empty for a rule that always does."""
        first, last = records[0]["ymdFrom"], records[-1]["ymdTo"]
        if first == last:
            return self.words["once"].format(self.date(first))
        if all(record["ymdFrom"] == record["ymdTo"] for record in records):
            days = [self.date(record["ymdFrom"]) for record in records]
            if len(days) > MOST_DAYS:
                return self.words["listed"].format(len(days), first // 10000, last // 10000)
            return self.words["several"].format(", ".join(days[:-1]), days[-1])
        if first == ALWAYS_FROM:
            return "" if last == ALWAYS_TO else self.words["until"].format(self.date(last))
        if last == ALWAYS_TO:
            return self.words["since"].format(self.date(first))
        return self.words["between"].format(self.date(first), self.date(last))

    def rules(self, rules):
        """Returns a sentence for each source and validity, in the order of the rules."""
        names = {}
        for records, source in rules:
            validity = self.validity(records)
            names.setdefault((f" ({validity})" if validity else "", source), {})[records[0]["name"]] = None
        sentences = []
        for (validity, source), found in names.items():
            listed = ", ".join(found) if len(found) <= LONGEST_LIST else self.words["many"].format(len(found))
            sentences.append(self.words["sentence"].format(names=listed, validity=validity, source=source))
        return sentences

    def text(self, calendar):
        """Returns the description of a calendar, with the blanks of French typography.

        Its sections are what the calendar is, the sources of the holidays and of the other events, the remarks and the
        day of the last check.
        """
        public = [rule for rule in calendar.rules if rule[0][0]["public"]]
        others = [rule for rule in calendar.rules if not rule[0][0]["public"]]
        sections = [[calendar.info], self.rules(public)]
        if others:
            sections.append([self.words["events"], *self.rules(others)])
        if calendar.remarks:
            sections.append([calendar.remarks])
        if calendar.checked:
            sections.append([self.words["checked"].format(self.date(packed(calendar.checked)))])
        text = SECTION.join(LINE.join(lines) for lines in sections if lines)
        return UNBREAKABLE.sub("\u00a0", text)
