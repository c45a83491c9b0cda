#!/usr/bin/env python3
"""Checks every #include of the program against the layers.

    tools/check_layers.py [ROOT]

A layer may include itself and the layers below it. LAYERS is the one place where their order stands.
Prints one line for each include that points the wrong way; ends with 1 when there is one.
"""

import os
import re
import sys

# From the lowest layer up: name, whether Qt may be used there, and the paths that belong to it. The
# first entry that fits a file is its layer. Layers on one line stand side by side and do not see one another.
LAYERS = [
    [("texts", False, ["resources/strings.", "resources/texts/", "resources/command_ids.", "resources/menus.", "resources/country_calendars."])],
    [("core", False, ["core/"])],
    [("content", False, ["content/"])],
    [("files", False, ["files/"])],
    [("settings", False, ["settings/"])],
    [("platform", True, ["platform/"]), ("pictures", True, ["resources/"])],
    [("ui/toolkit", True, ["ui/toolkit/"])],
    [("ui/painting", True, ["ui/painting/"]), ("ui/window", True, ["ui/window/"])],
    [(name, True, [name + "/"]) for name in (
        "ui/month", "ui/header", "ui/converter", "ui/editors", "ui/find", "ui/calendars", "ui/preferences", "ui/print")],
    [("ui/shell", True, ["ui/shell/"])],
]

# Geometry in plain integers and what editors accept, on layers that otherwise draw.
WITHOUT_QT = [
    "ui/painting/month_layout.", "ui/header/header_layout.", "ui/print/concordance.", "ui/print/page_layout.", "ui/print/print_job.",
    "ui/shell/main_layout.",
    "ui/editors/event_fields.", "ui/editors/joined_rows.", "ui/editors/period_fields.",
]

# Inside core the headers have an order too; a source may look upward.
CORE_HEADERS = ["core/packed_date.h", "core/calendar_config.h", "core/date.h", "core/civil_year.h"]

# Headers of whole modules, which cost seconds in each source; single headers are included instead.
UMBRELLAS = {"QtCore", "QtGui", "QtWidgets", "QtPrintSupport", "QtSvg", "QtTest"}

# These may include any layer, and nothing else may include them.
OUTSIDE = ["tests/", "bench/", "fuzz/", "tools/"]

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
STANDARD = re.compile(r"^[a-z][a-z_0-9]*$")
SKIPPED = {"build", ".git", ".cache", "packaging"}


def begins(path, prefixes):
    return any(path.startswith(prefix) for prefix in prefixes)


def layer_of(path):
    """Returns (height, name, Qt allowed), or None for a path of no layer."""
    for height, side_by_side in enumerate(LAYERS):
        for name, qt, prefixes in side_by_side:
            if begins(path, prefixes):
                return height, name, qt and not begins(path, WITHOUT_QT)
    return None


def home_of(path):
    """Returns the layer whose rules hold in `path`: a test may include what its layer may, and the test doubles."""
    if path.startswith("tests/"):
        inner = path[len("tests/"):]
        return None if inner.startswith("support/") else layer_of(inner)
    return layer_of(path)


def fault(path, bracket, target, exists):
    """Returns the fault of one include of `path`, or None."""
    home = home_of(path)
    is_test = begins(path, OUTSIDE)
    if bracket == "<":
        if target in UMBRELLAS or os.path.basename(target) in UMBRELLAS:
            return "includes a whole Qt module; include the classes used"
        if home and not home[2] and not is_test and not STANDARD.match(target):
            return f"{home[1]} uses the C++ standard library alone"
        return None

    if re.fullmatch(r"ui_\w+\.h", target):  # made from a form
        return None if not home or home[2] else f"{home[1]} has no Qt"
    if target.endswith(".moc"):
        return None
    if not exists(target):
        return "is no path from the root"
    if begins(target, OUTSIDE):
        return None if is_test else "the program does not include its tests or tools"
    there = layer_of(target)
    if there is None:
        return "belongs to no layer"
    if is_test and not home:
        return None
    if home is None:
        return "is included by a file of no layer"
    if there[0] > home[0] or (there[0] == home[0] and there[1] != home[1]):
        return f"{home[1]} does not see {there[1]}"
    if not is_test and not home[2] and there[2]:
        return f"{there[1]} brings Qt in"
    if path in CORE_HEADERS and target in CORE_HEADERS:
        if CORE_HEADERS.index(target) >= CORE_HEADERS.index(path):
            return "points upward among the headers of core"
    return None


def sources(root):
    for folder, folders, files in os.walk(root):
        folders[:] = sorted(name for name in folders if name not in SKIPPED)
        for name in sorted(files):
            if name.endswith((".h", ".cpp")):
                yield os.path.relpath(os.path.join(folder, name), root).replace(os.sep, "/")


def text_of(root, path):
    with open(os.path.join(root, path), encoding="utf-8", errors="replace") as source:
        return source.read()


def faults(root, read=None):
    """Yields the faults of the files below `root`, whose texts come from read(path) where that is given."""
    def exists(target):
        return os.path.isfile(os.path.join(root, target))

    for path in sources(root):
        text = read(path) if read else text_of(root, path)
        for match in INCLUDE.finditer(text):
            what = fault(path, match[1], match[2], exists)
            if what:
                line = text.count("\n", 0, match.start(1)) + 1
                yield f"{path}:{line}: {match[2]}: {what}"


def main(arguments):
    root = arguments[0] if arguments else os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
    count = sum(1 for _ in sources(root))
    found = list(faults(root))
    for line in found:
        print(line)
    print(f"{count} files, {len(found)} wrong includes")
    return 1 if found or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
