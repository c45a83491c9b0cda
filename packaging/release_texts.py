#!/usr/bin/env python3
"""Writes the texts that tell of releases, from packaging/releases.toml.

    packaging/release_texts.py --version 0.1.0 --maintainer 'Name <address>' --history docs/history.md
                               --releases packaging/releases.toml --out FOLDER NAME.in...

FOLDER receives changelog.gz, in the form of Debian's packages, and each NAME with @VERSION@, @DATE@ and @RELEASES@ filled
in; manual pages are packed as NAME.gz. Ends with 1 and a line when the newest release, the version and the history do
not agree, and writes nothing then.
"""

import argparse
import datetime
import gzip
import os
import re
import sys
import textwrap
import tomllib
from email.utils import format_datetime
from xml.sax.saxutils import escape


def fault(releases, version, history):
    """Returns how the three places that name the newest version differ, or an empty text."""
    newest = releases[0]["version"]
    if newest != version:
        return f"the newest release is {newest}, but the project's version is {version}"
    headings = re.findall(r"^## (\S+)", history, re.MULTILINE)
    if headings[:1] != [version]:
        return f"the history of changes begins with {headings[:1]}, not with {version}"
    return ""


def as_metainfo(releases):
    lines = []
    for release in releases:
        lines += [f'    <release version="{release["version"]}" date="{release["date"]}">', "      <description>",
                  "        <ul>"]
        for english, french in release["notes"]:
            lines += [f"          <li>{escape(english)}</li>", f'          <li xml:lang="fr">{escape(french)}</li>']
        lines += ["        </ul>", "      </description>", "    </release>"]
    return "\n".join(lines)


def as_changelog(releases, maintainer):
    text = ""
    for release in releases:
        text += f"orbisol ({release['version']}) unstable; urgency=medium\n\n"
        for english, _ in release["notes"]:
            text += textwrap.fill(english + ".", 78, initial_indent="  * ", subsequent_indent="    ") + "\n"
        noon = datetime.datetime.combine(release["date"], datetime.time(12), datetime.timezone.utc)
        text += f"\n -- {maintainer}  {format_datetime(noon)}\n\n"
    return text.rstrip("\n") + "\n"


def write_packed(path, text):
    """Writes neither name nor time into the packed file: the same bytes wherever it is made."""
    with open(path, "wb") as file:
        file.write(gzip.compress(text.encode(), 9, mtime=0))


def main():
    parser = argparse.ArgumentParser()
    for name in ("version", "maintainer", "history", "releases", "out"):
        parser.add_argument("--" + name, required=True)
    parser.add_argument("templates", nargs="*")
    given = parser.parse_args()

    with open(given.releases, "rb") as file:
        releases = tomllib.load(file)["release"]
    with open(given.history, encoding="utf-8") as file:
        reason = fault(releases, given.version, file.read())
    if reason:
        sys.exit(f"{given.releases}: {reason}")

    words = {"@VERSION@": given.version, "@DATE@": str(releases[0]["date"]), "@RELEASES@": as_metainfo(releases)}
    write_packed(os.path.join(given.out, "changelog.gz"), as_changelog(releases, given.maintainer))
    for template in given.templates:
        with open(template, encoding="utf-8") as file:
            text = file.read()
        for word, value in words.items():
            text = text.replace(word, value)
        path = os.path.join(given.out, os.path.basename(template).removesuffix(".in"))
        if path.endswith(".1"):
            write_packed(path + ".gz", text)
        else:
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)


main()
