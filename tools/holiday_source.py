"""Reads the source of a public calendar, and tells the line of what is wrong in it."""

import os
import re
import tomllib

RULE_HEAD = re.compile(r"\s*\[\[\s*rule\s*\]\]")


class Fault(Exception):
    """A fault in a source. Its text is the whole line to print."""


class Source:
    """One file, and the lines of its keys."""

    def __init__(self, path):
        self.path = path
        self.stem = os.path.splitext(os.path.basename(path))[0]
        with open(path, "rb") as file:
            text = file.read()
        try:
            self.lines = text.decode("utf-8").splitlines()
            self.data = tomllib.loads("\n".join(self.lines))
        except UnicodeDecodeError as error:
            self.fail(text.count(b"\n", 0, error.start) + 1, "is not UTF-8")
        except tomllib.TOMLDecodeError as error:
            place = re.search(r"\(at line (\d+), column \d+\)", str(error))
            self.fail(int(place[1]) if place else len(self.lines), str(error))
        self.heads = [number for number, line in enumerate(self.lines, 1) if RULE_HEAD.match(line)]
        rules = self.data.get("rule", [])
        if not isinstance(rules, list) or len(rules) != len(self.heads):
            self.fault("rule", "each rule begins with a line of its own, [[rule]]")

    def fail(self, line, reason):
        raise Fault(f"{self.path}:{line}: {reason}")

    def line_of(self, key=None, rule=None):
        """Returns the line of a key, of the calendar or of one of its rules; else the line where that begins."""
        begin, end = 1, self.heads[0] if self.heads else len(self.lines) + 1
        if rule is not None:
            begin, end = self.heads[rule], [*self.heads, len(self.lines) + 1][rule + 1]
        for number in range(begin, end):
            if key and re.match(rf"\s*({key}\s*=|\[+\s*{key}\s*\])", self.lines[number - 1]):
                return number
        return begin

    def fault(self, key, reason, rule=None):
        self.fail(self.line_of(key, rule), reason)


def is_text(value):
    """Returns whether a value is a text of one line with single blanks and none at its ends."""
    return isinstance(value, str) and value != "" and value == value.strip() and not re.search(r"[\x00-\x1f]|  ", value)


def is_file_name(value):
    """Returns whether a value can be the name of a calendar, and so of its file."""
    return is_text(value) and value not in (".", "..") and not re.search(r"[/\\]", value) and len(value.encode()) <= 200
