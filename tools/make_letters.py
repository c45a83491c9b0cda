#!/usr/bin/env python3
"""Writes core/letters.inc, the letters that core/text.cpp folds and turns into capitals, from Unicode's tables.

    tools/make_letters.py          # after a change of this script
    tools/make_letters.py --check  # whether the file is what this script writes

The file is made of records {letter, its capital, what it folds to}, by letter. The capital is the letter itself where it has none of one
unit. To fold is to take away what a search does not ask for: capitals, accents, ligatures, the form of an apostrophe.
"""

import os
import sys
import unicodedata

RECORDS_A_LINE = 5
PATH = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "core", "letters.inc")

# Ranges of Latin, Greek and Cyrillic with their combining accents, and of the apostrophes of printed texts.
RANGES = [(0x0041, 0x052F), (0x1E00, 0x1FFF), (0x2018, 0x2019)]

# Letters that Unicode does not decompose.
BASES = {"œ": "oe", "æ": "ae", "ø": "o", "đ": "d", "ð": "d", "ħ": "h", "ı": "i", "ĸ": "k", "ł": "l", "ŋ": "n", "ŧ": "t", "þ": "th",
         "ʼ": "'", "‘": "'", "’": "'"}


def fold(letter):
    bare = []
    for part in unicodedata.normalize("NFKD", letter.casefold()).casefold():
        if not unicodedata.combining(part):
            bare.append(BASES.get(part, part))
    return "".join(bare)


def capital(letter):
    upper = letter.upper()
    return upper if len(upper) == 1 and ord(upper) < 0x10000 else letter


def units(text):
    return "".join(character if " " < character < "\x7f" else f"\\u{ord(character):04X}" for character in text)


def table():
    records = []
    for first, last in RANGES:
        for code in range(first, last + 1):
            letter = chr(code)
            # A decomposition with a space, as that of a lone accent, would split a word.
            if unicodedata.category(letter) == "Cn" or " " in fold(letter):
                continue
            if fold(letter) != letter or capital(letter) != letter:
                records.append(f'{{0x{code:04X}, 0x{ord(capital(letter)):04X}, u"{units(fold(letter))}"}},')
    lines = ["// Made by tools/make_letters.py from Unicode's tables: letter, capital, what it folds to."]
    for first in range(0, len(records), RECORDS_A_LINE):
        lines.append(" ".join(records[first:first + RECORDS_A_LINE]))
    return "\n".join(lines) + "\n"


def main(arguments):
    if arguments == ["--check"]:
        with open(PATH, encoding="utf-8") as file:
            if file.read() == table():
                return 0
        print("core/letters.inc is not what tools/make_letters.py writes")
        return 1
    with open(PATH, "w", encoding="utf-8") as file:
        file.write(table())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
