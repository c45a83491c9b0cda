#!/usr/bin/env python3
"""Prints the result of gcovr as one row for each layer.

    tools/coverage_table.py build/coverage/coverage.json [--lines]

With --lines every file follows that has lines or branches which no test reached, and where they are.
"""

import json
import sys

LAYERS = ["core", "content", "files", "settings", "platform", "ui"]


class Count:
    def __init__(self):
        self.lines = self.lines_reached = self.branches = self.branches_reached = 0

    def add(self, file):
        for line in file["lines"]:
            if line.get("gcovr/noncode"):
                continue
            self.lines += 1
            self.lines_reached += line["count"] > 0
            for branch in line["branches"]:
                self.branches += 1
                self.branches_reached += branch["count"] > 0

    def row(self, name):
        def part(reached, all_of_them):
            percent = f"{100 * reached / all_of_them:6.1f} %" if all_of_them else "       –"
            return f"{percent} {reached:6} of {all_of_them:6}"

        lines = part(self.lines_reached, self.lines)
        return f"{name:10} {lines}    {part(self.branches_reached, self.branches)}"


def ranges(numbers):
    """Returns '3-5, 9' for [3, 4, 5, 9]."""
    pieces = []
    for number in numbers:
        if pieces and pieces[-1][1] == number - 1:
            pieces[-1][1] = number
        else:
            pieces.append([number, number])
    return ", ".join(str(first) if first == last else f"{first}-{last}" for first, last in pieces)


def main(path, *options):
    with open(path, encoding="utf-8") as source:
        files = json.load(source)["files"]

    print(f"\n{'layer':10} {'lines':>25}    {'branches':>25}")
    for layer in LAYERS:
        count = Count()
        for file in files:
            if file["file"].startswith(layer + "/"):
                count.add(file)
        if count.lines:
            print(count.row(layer))

    if "--lines" not in options:
        return
    for file in files:
        code = [line for line in file["lines"] if not line.get("gcovr/noncode")]
        missed = [line["line_number"] for line in code if line["count"] == 0]
        half = [line["line_number"] for line in code
                if line["count"] > 0 and any(branch["count"] == 0 for branch in line["branches"])]
        if missed or half:
            print(f"\n{file['file']}")
            if missed:
                print(f"  never reached: {ranges(missed)}")
            if half:
                print(f"  a branch never taken: {ranges(half)}")


main(*sys.argv[1:])
