#!/usr/bin/env python3
"""Starts the installed program as a user who never had it, again and again, and looks at where its window lies.

    tools/fresh-starts.py [--quiet N] [--loaded N] [--screen WxH] [--expect X,Y,W,H] [PROGRAM]

Each trial has an empty home on a virtual display under openbox: a start, the window closed as a user closes it, a
second start, closed again. It is right when

  - the window's real rectangle, frame included, is the wanted one: centred, two thirds of the available screen,
    at most 1280 x 800 and at least the window's own least size (or that of --expect);
  - the rectangle stored in Calendar.reg is the one that stood on the screen;
  - the second start stands at the same place and stores the same.

Half of the trials are quiet; in the others openbox runs at nice 15 beside three busy loops. Prints one line for each
trial that is wrong, then how many were right; ends with 1 when one was wrong. PROGRAM is build/stage/bin/orbisol
unless given (`make run` puts it there). Ten trials take about half a minute.
"""

import argparse
import os
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import time

from desktop_session import start_x_server

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
START_SECONDS = 60
CLOSE_SECONDS = 60
# Time for which a rectangle must stay the same to count as the last one, and time to wait for that.
SETTLED_SECONDS = {"quiet": 1.0, "loaded": 3.0}
SETTLE_LIMIT = 30


class Fault(Exception):
    """The fault of a trial."""


def output_of(*words):
    result = subprocess.run(words, capture_output=True, text=True, timeout=30, check=False)
    return result.stdout


def wait_for(seconds, look):
    """Calls look() until its answer is true, and returns that; None after `seconds`."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = look()
        if found:
            return found
        time.sleep(0.05)
    return None


def end_process(process):
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


class Display:
    """An X server with openbox; in the loaded mode a slow one beside busy loops."""

    def __init__(self, mode, screen, scratch):
        self.processes = []
        server, os.environ["DISPLAY"] = start_x_server(screen + "x24", os.environ, subprocess.DEVNULL)
        self.processes.append(server)
        os.environ.pop("WAYLAND_DISPLAY", None)
        nice = ["nice", "-n", "15"] if mode == "loaded" else []
        environment = {**os.environ, "XDG_CACHE_HOME": scratch, "XDG_CONFIG_HOME": scratch}
        self.spawn([*nice, "openbox"], env=environment)
        # It announces itself before it takes care of windows: the list of windows comes last, and it may rest then.
        if not wait_for(30, lambda: "window id" in output_of("xprop", "-root", "_NET_CLIENT_LIST")):
            raise SystemExit("fresh-starts: no window manager")
        time.sleep(SETTLED_SECONDS[mode])
        if mode == "loaded":
            for _ in range(3):
                self.spawn([sys.executable, "-c", "while True: pass"])

    def spawn(self, words, **options):
        self.processes.append(
            subprocess.Popen(words, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            end_process(process)


def field(text, name):
    found = re.search(re.escape(name) + r":\s*(-?\d+)", text)
    if not found:
        raise Fault("the window is gone")
    return int(found[1])


def rectangle(window):
    """(x, y, width, height) of a window on the root, borders included."""
    text = output_of("xwininfo", "-id", window)
    border = field(text, "Border width")
    return (field(text, "Absolute upper-left X") - border, field(text, "Absolute upper-left Y") - border,
            field(text, "Width") + 2 * border, field(text, "Height") + 2 * border)


def frame_of(window):
    """The frame that the window manager put around a window: its last ancestor below the root. None as long as
    it has none."""
    frame = window
    while True:
        text = output_of("xwininfo", "-tree", "-id", frame)
        root = re.search(r"Root window id: (0x[0-9a-f]+)", text)
        parent = re.search(r"Parent window id: (0x[0-9a-f]+)", text)
        if not root or not parent:
            raise Fault("the window is gone")
        if parent[1] == root[1]:
            return None if frame == window else frame
        frame = parent[1]


def numbers(window, name):
    """Returns the numbers of a property; empty if the window has none of this name."""
    found = re.search(r"=\s*(.*)", output_of("xprop", *window, name))
    return [int(word) for word in re.findall(r"-?\d+", found[1])] if found else []


def least_size(window):
    """Returns the least size with the frame; (0, 0) if the window states none."""
    text = output_of("xprop", "-id", window, "WM_NORMAL_HINTS")
    found = re.search(r"minimum size: (\d+) by (\d+)", text)
    left, right, top, bottom = (numbers(["-id", window], "_NET_FRAME_EXTENTS") or [0, 0, 0, 0])[:4]
    return (int(found[1]) + left + right, int(found[2]) + top + bottom) if found else (0, 0)


def wanted_rectangle(window, height_now):
    """Returns the rectangle of a first window. It is up to six pixels lower, so that the seven rows of the month
    are equally high; `height_now` within that is right."""
    x, y, width, height = numbers(["-root"], "_NET_WORKAREA")[:4]
    least = least_size(window)
    size = (max(min(width * 2 // 3, 1280), least[0]), max(min(height * 2 // 3, 800), least[1]))
    if 0 <= size[1] - height_now < 7:
        size = (size[0], height_now)
    return (x + (width - size[0]) // 2, y + (height - size[1]) // 2, *size)


def stored_layout(home):
    """Returns (rectangle, whether the pane is shown, its width) from Calendar.reg."""
    path = os.path.join(home, ".config", "Corvalen", "Calendar.reg")
    try:
        with open(path, encoding="utf-8") as file:
            text = file.read().replace("\\\n", "").replace("\\\r\n", "")
    except OSError as error:
        raise Fault(f"nothing was stored: {error.strerror}") from error
    found = re.search(r'^"WindowLayout"=hex:([0-9a-f, ]*)', text, re.MULTILINE | re.IGNORECASE)
    if not found:
        raise Fault("no WindowLayout was stored")
    left, top, right, bottom, _, _, _, pane, pane_width = struct.unpack(
        "<4i4Bi", bytes.fromhex(found[1].replace(",", "").replace(" ", "")))
    return (left, top, right - left, bottom - top), pane != 0, pane_width


class Start:
    """One run of the program, from its start to its end."""

    def __init__(self, program, home, mode):
        environment = {name: os.environ[name] for name in ("PATH", "DISPLAY")}
        environment.update(HOME=home, XDG_RUNTIME_DIR=home + "/run", LANG="fr_FR.UTF-8", QT_QPA_PLATFORM="xcb")
        self.name = os.path.basename(program)
        self.log = open(home + "/log", "a", encoding="utf-8")
        self.process = subprocess.Popen([program], env=environment, stdin=subprocess.DEVNULL, stdout=self.log,
                                        stderr=self.log)
        try:
            self.window = wait_for(START_SECONDS, self.find_window)
            if not self.window:
                raise Fault("no window came")
            self.real = self.settle(SETTLED_SECONDS[mode])
            self.wanted = wanted_rectangle(self.window, self.real[3])
        except BaseException:
            self.end()
            raise

    def find_window(self):
        if self.process.poll() is not None:
            raise Fault(f"the program ended with {self.process.returncode}")
        words = output_of("xdotool", "search", "--onlyvisible", "--class", f"^{self.name}$").split()
        return hex(int(words[0])) if words else None

    def settle(self, seconds):
        """Returns the rectangle of the frame, once there is one and it stays the same."""
        last, since = None, time.monotonic()
        end = since + SETTLE_LIMIT
        while time.monotonic() < end:
            frame = frame_of(self.window)
            seen = rectangle(frame) if frame else None
            if seen != last:
                last, since = seen, time.monotonic()
            elif seen and time.monotonic() - since >= seconds:
                return seen
            time.sleep(0.05)
        raise Fault(f"the window never settles; last seen at {last}")

    def close(self):
        """Closes the window as a user does. A slow window manager may miss a key, so it is pressed again."""
        end = time.monotonic() + CLOSE_SECONDS
        while self.process.poll() is None and time.monotonic() < end:
            output_of("xdotool", "windowactivate", self.window)
            output_of("xdotool", "key", "--clearmodifiers", "alt+F4")
            wait_for(5, lambda: self.process.poll() is not None)
        status = self.process.poll()
        self.end()
        if status != 0:
            raise Fault("the program does not close" if status is None else f"the program ended with {status}")

    def end(self):
        end_process(self.process)
        self.log.close()


def run_once(program, home, mode, expected):
    """Returns the real and the stored rectangle of one start."""
    start = Start(program, home, mode)
    start.close()
    stored, pane_shown, pane_width = stored_layout(home)
    # The stored rectangle always holds the pane.
    hidden = 0 if pane_shown else pane_width
    standing = (*start.real[:2], start.real[2] + hidden, start.real[3])
    wanted = expected or start.wanted
    if start.real != wanted:
        raise Fault(f"stands at {start.real}, wanted was {wanted}; stored {stored}")
    if stored != standing:
        raise Fault(f"stood at {standing}, stored {stored}")
    return start.real, stored


def trial(program, mode, expected):
    home = tempfile.mkdtemp(prefix="fresh-start-")
    try:
        os.mkdir(home + "/run", 0o700)
        first = run_once(program, home, mode, expected)
        try:
            second = run_once(program, home, mode, first[0])
        except Fault as fault:
            raise Fault(f"second start: {fault}") from fault
        if second != first:
            raise Fault(f"second start stored {second[1]} after {first[1]}")
    finally:
        shutil.rmtree(home, ignore_errors=True)


def main():
    parser = argparse.ArgumentParser(description="Looks at where the first window of a fresh user lies.")
    parser.add_argument("program", nargs="?", default=os.path.join(ROOT, "build/stage/bin/orbisol"))
    parser.add_argument("--quiet", type=int, default=10, help="trials on an idle machine")
    parser.add_argument("--loaded", type=int, default=10, help="trials with a slow window manager")
    parser.add_argument("--screen", default="1920x1080")
    parser.add_argument("--expect", type=lambda text: tuple(int(word) for word in text.split(",")),
                        help="x,y,width,height of the first window, frame included")
    options = parser.parse_args()
    program = os.path.abspath(options.program)
    if not os.access(program, os.X_OK):
        raise SystemExit(f"fresh-starts: {program} is not there")

    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    right, total = 0, options.quiet + options.loaded
    scratch = tempfile.mkdtemp(prefix="fresh-starts-")
    try:
        for mode, count in (("quiet", options.quiet), ("loaded", options.loaded)):
            if count == 0:
                continue
            with Display(mode, options.screen, scratch):
                for number in range(1, count + 1):
                    try:
                        trial(program, mode, options.expect)
                        right += 1
                    except Fault as fault:
                        print(f"{mode} {number}: {fault}", flush=True)
    finally:
        shutil.rmtree(scratch, ignore_errors=True)
    print(f"{right} of {total} right")
    return 0 if right == total else 1


if __name__ == "__main__":
    sys.exit(main())
