"""A desktop of its own for a test or a trial: private folders, an X server, openbox, and the end of all of them.

    adopt_orphans()
    environment = environment_in(root)
    start_display(environment, log)
    …
    end_all_children()
"""

import ctypes
import os
import select
import signal
import subprocess
import time

WAIT = 90  # seconds for any one answer, on a machine that is busy with other things


class Failure(Exception):
    """Something that was waited for and did not come."""


def wait_for(what, condition, step=lambda: time.sleep(0.05)):
    """Returns what the condition returns as soon as that is true."""
    end = time.monotonic() + WAIT
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failure(f"{what}: not within {WAIT} s")
        step()


def adopt_orphans():
    """Makes the children of our children ours when these end."""
    become_parent_of_orphans = 36  # PR_SET_CHILD_SUBREAPER
    ctypes.CDLL(None).prctl(become_parent_of_orphans, 1, 0, 0, 0)


def children_of(pid):
    try:
        with open(f"/proc/{pid}/task/{pid}/children") as file:
            return [int(child) for child in file.read().split()]
    except OSError:
        return []


def end_all_children():
    """Ends our children and theirs, which come to us when their parents end."""
    for number in [signal.SIGTERM] * 20 + [signal.SIGKILL] * 100:
        while True:
            try:
                if os.waitpid(-1, os.WNOHANG)[0] == 0:
                    break
            except ChildProcessError:
                return
        for child in children_of(os.getpid()):
            os.kill(child, number)
        time.sleep(0.05)


def environment_in(root):
    kept = {name: os.environ[name] for name in ("PATH", "LD_LIBRARY_PATH") if name in os.environ}
    folders = {
        "HOME": "home",
        "XDG_CONFIG_HOME": "home/.config",
        "XDG_DATA_HOME": "home/.local/share",
        "XDG_CACHE_HOME": "home/.cache",
        "XDG_STATE_HOME": "home/.local/state",
        "XDG_RUNTIME_DIR": "run",
        "TMPDIR": "tmp",
    }
    for name, folder in folders.items():
        kept[name] = os.path.join(root, folder)
        os.makedirs(kept[name], mode=0o700, exist_ok=True)
    kept.update(
        LC_ALL="C.UTF-8",
        TZ="UTC0",
        QT_QPA_PLATFORM="xcb",
        QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
        GIO_USE_VFS="local",
        GSETTINGS_BACKEND="memory",
        ASAN_OPTIONS="detect_leaks=0",
        PYTHONDONTWRITEBYTECODE="1",
    )
    return kept


def start_x_server(screen, environment, log):
    """Returns the process of a server with one screen ("1280x1024x24") and its display (":3")."""
    read, write = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", screen, "-nolisten", "tcp", "-noreset"],
        env=environment, stdout=log, stderr=log, pass_fds=[write])
    os.close(write)
    # The number and the end of its line come one after the other; who hangs up in between ends the server.
    number = b""
    while not number.endswith(b"\n"):
        part = os.read(read, 20) if select.select([read], [], [], WAIT)[0] else b""
        if not part:
            raise Failure("no X server")
        number += part
    os.close(read)
    return server, ":" + number.decode().strip()


def start_display(environment, log):
    environment["DISPLAY"] = start_x_server("1280x1024x24", environment, log)[1]
    subprocess.Popen(["openbox"], env=environment, stdout=log, stderr=log)

    def has_manager():
        answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], env=environment, text=True,
                                capture_output=True, check=False)
        return "window id" in answer.stdout

    wait_for("the window manager", has_manager)
