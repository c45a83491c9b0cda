#!/usr/bin/env python3
"""Checks that orbisol-days prints the marked days, and reports what it cannot do.

    orbisol_days_test.py PATH_OF_FRANCE_XML PATH_OF_ORBISOL_DAYS
"""

import os
import subprocess
import sys
import unittest

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
WHOLE = os.path.join(ROOT, "tests", "data", "files", "whole.xml")
PROGRAM = sys.argv.pop()
FRANCE = sys.argv.pop()


def run(*arguments):
    done = subprocess.run([PROGRAM, *arguments], capture_output=True, check=False)
    return done.returncode, done.stdout.decode("utf-8").splitlines()


class OrbisolDaysTest(unittest.TestCase):
    def test_public_days_are_printed_one_a_line(self):
        code, lines = run(FRANCE, "2024", "2024")
        self.assertEqual((code, len(lines)), (0, 11))
        self.assertEqual(lines[2:4], ["20240501 Fête du Travail", "20240508 Victoire 1945"])

    def test_all_marks_are_printed_on_request_under_the_rules_of_the_file(self):
        self.assertIn("20240526 Fête des mères", run("--all", FRANCE, "2024", "2024")[1])
        lines = run("--all", WHOLE, "1752", "1752")[1]
        self.assertIn("17520902 ", lines)  # a period without a title
        self.assertNotIn("17520903 ", lines)  # a day that England dropped
        self.assertIn("-00440315 ", run("--all", WHOLE, "-44", "-44")[1])

    def test_what_cannot_be_done_is_said(self):
        for wrong in [[], [FRANCE, "x", "2024"], [FRANCE, "2024", "4000"], ["--some", FRANCE, "2024", "2024"]]:
            self.assertEqual(run(*wrong), (2, []), wrong)
        for unreadable in [os.path.join(ROOT, "no such file"), ROOT]:
            self.assertEqual(run(unreadable, "2024", "2024"), (1, []))


if __name__ == "__main__":
    unittest.main()
