#!/usr/bin/env python3
"""Prints how many lines are tests and how many are the product, and the share of the tests in both together.

Tests are the C++ and Python files under tests/, data aside; the product is the C++ outside tests/, fuzz/ and bench/.
Blank lines do not count.
"""

import os
import subprocess

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
CPP = (".cpp", ".h")


def lines_of(path):
    with open(os.path.join(ROOT, path), encoding="utf-8", errors="replace") as file:
        return sum(1 for line in file if line.strip())


def main():
    listed = subprocess.run(["git", "-c", "safe.directory=*", "ls-files", "-co", "--exclude-standard"], cwd=ROOT,
                            capture_output=True, text=True, check=True).stdout.splitlines()
    tests = product = 0
    for path in listed:
        if not os.path.isfile(os.path.join(ROOT, path)) or path.startswith(("tests/data/", "fuzz/", "bench/")):
            continue
        if path.startswith("tests/"):
            tests += lines_of(path) if path.endswith((*CPP, ".py")) else 0
        elif path.endswith(CPP):
            product += lines_of(path)
    print(f"tests {tests}, product {product}: {100 * tests / (tests + product):.1f} % of the lines are tests")


if __name__ == "__main__":
    main()
