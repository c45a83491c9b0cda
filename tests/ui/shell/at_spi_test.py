#!/usr/bin/env python3
"""Reads the main window as a screen reader does: through the accessibility bus, on a virtual display.

    at_spi_test.py PROGRAM SOURCES LEGALS

Needs the packages of the `test` group (tools/install-packages.sh); with one missing it fails and names it.
Everything runs in folders of its own, and all that was started ends with it.
"""

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "..", "tools"))
from desktop_session import WAIT, Failure, adopt_orphans, end_all_children, environment_in, start_display, wait_for  # noqa: E402

TOOLS = ["Xvfb", "openbox", "xdotool", "xprop", "dbus-run-session", "/usr/libexec/at-spi-bus-launcher"]


# --- Outside: the display, the session and their end -----------------------------------------------------


def make_stage(root, program, sources, legals):
    """Returns the program as it is installed, with its data beside it, where it looks for them."""
    share = os.path.join(root, "stage", "share", "orbisol")
    os.makedirs(os.path.join(root, "stage", "bin"))
    os.makedirs(share)
    os.symlink(legals, os.path.join(share, "Legals"))
    os.symlink(os.path.join(sources, "resources", "Calendar.reg"), os.path.join(share, "Calendar.reg"))
    return shutil.copy2(program, os.path.join(root, "stage", "bin", "orbisol"))


def run_outside(program, sources, legals):
    missing = [tool for tool in TOOLS if not shutil.which(tool)]
    if missing:
        print("tools/install-packages.sh test installs what is missing here:", *missing)
        return 1
    adopt_orphans()
    for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        signal.signal(number, lambda *_: sys.exit(1))
    root = tempfile.mkdtemp(prefix="orbisol-reader-")
    log_path = os.path.join(root, "log")
    result = 1
    try:
        with open(log_path, "w") as log:
            environment = environment_in(root)
            staged = make_stage(root, program, sources, legals)
            start_display(environment, log)
            inside = subprocess.Popen(
                ["dbus-run-session", "--", sys.executable, os.path.abspath(__file__), "--inside", staged, log_path],
                env=environment, stderr=log)
            result = inside.wait()
    except Failure as failure:
        print(failure)
    finally:
        end_all_children()
        if result != 0:
            with open(log_path, errors="replace") as log:
                print("--- what the programs said:", log.read(), sep="\n")
        shutil.rmtree(root, ignore_errors=True)
    return result


# --- Inside: the reader ----------------------------------------------------------------------------------


class Reader:
    def __init__(self, program, log_path):
        import pyatspi
        from gi.repository import Atspi, GLib

        self.atspi = pyatspi
        Atspi.set_timeout(WAIT * 1000, WAIT * 1000)
        self.context = GLib.MainContext.default()
        self.log = open(log_path, "a")
        self.focused = self.names_told_by("object:state-changed:focused")
        self.selected = self.names_told_by("object:state-changed:selected")
        self.renamed = self.names_told_by("object:property-change:accessible-name")
        self.program = subprocess.Popen([program], stdout=self.log, stderr=self.log)

    def names_told_by(self, kind):
        """Returns a list that will take the names of what events of a kind are about, in their order."""
        names = []

        def hear(event):
            if event.detail1 or "state-changed" not in kind:
                names.append(self.name_of(event.source))

        self.atspi.Registry.registerEventListener(hear, kind)
        return names

    def name_of(self, item):
        try:
            item.clear_cache()
            return item.name
        except Exception:  # what the event was about is gone
            return None

    def wait_for(self, what, condition):
        def step():
            if self.program.poll() is not None:
                raise Failure(f"{what}: the program ended with {self.program.returncode}")
            while self.context.iteration(False):
                pass
            time.sleep(0.02)

        try:
            return wait_for(what, condition, step)
        except Failure as failure:
            raise Failure(f"{failure}; focused so far: {self.focused[-5:]}") from None

    def states_of(self, item):
        item.clear_cache()
        return item.getState()

    def find(self, matches, item=None):
        """Returns the first match below the program's window, depth first; None while there is none."""
        if item is None:
            item = [app for app in self.atspi.Registry.getDesktop(0) if app is not None and app.name == "orbisol"]
        for child in item:
            if child is None:
                continue
            if matches(child):
                return child
            found = self.find(matches, child) if child.getRole() != self.atspi.ROLE_TABLE else None
            if found is not None:
                return found
        return None

    def key(self, keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", keys], check=True, timeout=WAIT)

    def key_moves_focus(self, keys, name):
        self.focused.clear()
        self.key(keys)
        self.wait_for(f"'{name}' focused after {keys}", lambda: name in self.focused)


def same(what, found, expected):
    if found != expected:
        raise Failure(f"{what}: {found!r}, not {expected!r}")


def check_month(reader):
    atspi = reader.atspi
    month = reader.wait_for(
        "a table", lambda: reader.find(lambda item: item.getRole() == atspi.ROLE_TABLE))
    reader.wait_for("the keyboard in the month", lambda: reader.states_of(month).contains(atspi.STATE_FOCUSED))
    table = month.queryTable()

    # The beginning of the Republican calendar, whatever today is.
    reader.renamed.clear()
    reader.key_moves_focus("r", "Samedi 22 septembre 1792")
    reader.wait_for("the month's name", lambda: "Septembre 1792" in reader.renamed)
    reader.selected.clear()
    reader.key_moves_focus("Right", "Dimanche 23 septembre 1792, Premier quartier de lune")
    reader.wait_for("the day selected", lambda: reader.selected)
    same("selected", reader.selected, ["Dimanche 23 septembre 1792, Premier quartier de lune"])

    def cell_named(start):
        for index in range(42):
            cell = table.getAccessibleAt(index // 7, index % 7)
            if reader.name_of(cell).startswith(start):
                return cell
        raise Failure(f"no day is called {start}")

    sunday = cell_named("Dimanche 23 ")
    same("the column above it", table.getColumnHeader(6).name, "Dimanche")
    same("the day is selected", reader.states_of(sunday).contains(atspi.STATE_SELECTED), True)

    # Readers ask where any child stands, a day or a header, and also one that is gone.
    same("children", month.childCount, 56)
    for index in range(-1, month.childCount + 10):
        table.getRowColumnExtentsAtIndex(index)
    place = sunday.queryComponent().getExtents(atspi.DESKTOP_COORDS)
    hit = month.queryComponent().getAccessibleAtPoint(
        place.x + place.width // 2, place.y + place.height // 2, atspi.DESKTOP_COORDS)
    same("what lies there", reader.name_of(hit), reader.name_of(sunday))

    reader.focused.clear()
    same("pressing a day", cell_named("Lundi 10 ").queryAction().doAction(0), True)
    reader.wait_for("the day pressed", lambda: "Lundi 10 septembre 1792" in reader.focused)

    # A day with a text, in the last month of all, and the focus brought to a day.
    reader.key_moves_focus("End", "Vendredi 31 décembre 3999")
    christmas = cell_named("Samedi 25 ")
    same("Christmas", reader.name_of(christmas), "Samedi 25 décembre 3999, jour férié : Noël")
    same("focusing a day", christmas.queryComponent().grabFocus(), True)
    reader.wait_for("the day focused", lambda: "Samedi 25 décembre 3999, jour férié : Noël" in reader.focused)
    reader.key_moves_focus("r", "Samedi 22 septembre 1792")
    return month


def check_header(reader, month):
    part = reader.wait_for("the arrow", lambda: reader.find(lambda item: item.name == "Mois précédent : août 1792"))
    same("its role", part.getRole(), reader.atspi.ROLE_PUSH_BUTTON)
    same("it is reached with the keyboard", part.getState().contains(reader.atspi.STATE_FOCUSABLE), True)
    part.queryAction().doAction(0)
    reader.wait_for("August", lambda: reader.name_of(month) == "Août 1792")


def check_program(reader, month):
    """Parts of the start that no test inside the process sees: the filter of Space, the end."""
    atspi = reader.atspi
    month.queryComponent().grabFocus()
    reader.key("space")
    today = reader.wait_for("the pane's button for today", lambda: reader.find(
        lambda item: item.name == "Aujourd'hui" and item.getRole() == atspi.ROLE_PUSH_BUTTON
        and item.getState().contains(atspi.STATE_FOCUSABLE)))
    before = reader.name_of(month)
    today.queryComponent().grabFocus()
    reader.wait_for("the keyboard on the button", lambda: reader.states_of(today).contains(atspi.STATE_FOCUSED))
    reader.key("space")
    reader.wait_for("the month of today", lambda: reader.name_of(month) != before)

    reader.program.terminate()
    same("the exit code after a signal", reader.program.wait(timeout=WAIT), 0)
    with open(os.path.join(os.environ["XDG_CONFIG_HOME"], "Corvalen", "Calendar.reg"), encoding="utf-8") as file:
        same("the layout is stored after a signal", "WindowLayout" in file.read(), True)


def run_inside(program, log_path):
    reader = Reader(program, log_path)
    try:
        month = check_month(reader)
        check_header(reader, month)
        check_program(reader, month)
    except Failure as failure:
        print(failure)
        return 1
    finally:
        reader.program.kill()
        reader.program.wait()
    return 0


if __name__ == "__main__":
    if sys.argv[1] == "--inside":
        sys.exit(run_inside(*sys.argv[2:4]))
    sys.exit(run_outside(*sys.argv[1:]))
