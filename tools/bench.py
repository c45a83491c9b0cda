#!/usr/bin/env python3
"""Measures the program beside its peers and says which budgets hold.

    tools/bench.py FOLDER [FILTER]

FOLDER holds the bench programs (*_bench). Each is run for the median of five repetitions in random order, and the peers
that are programs of their own are timed in the same minutes. The start of the program (start_orbisol) is timed in turns
with that of an empty window (start_empty), and then it is watched while nobody touches it. Two tables are printed:
every measurement beside the fastest of its peers, and one line a budget:

    B1  1.49  <= 1.55  ok

A budget that was missed says "short", and "near" where it was missed by no more than a tenth: these machines are
noisy. Missed budgets do not make the run fail.
"""

import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

from bench_budgets import print_budgets

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
REPETITIONS = 5
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
STARTS = 15  # starts of each program, after one that warms the caches
SETTLING_SECONDS = 3  # time after which the last timer of the start has run
IDLE_SECONDS = 5  # time over which an idle program is measured
SCREEN = """{"screens": [{"name": "one", "x": 0, "y": 0, "width": 3840, "height": 2160,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}"""


def make_home(folder):
    """Returns the environment of a fresh machine in France: a home with the settings key and the holidays, a screen."""
    def copy(source, *path):
        target = os.path.join(folder, *path)
        os.makedirs(os.path.dirname(target))
        shutil.copy(os.path.join(ROOT, source), target)

    copy("resources/Calendar.reg", "config", "Corvalen", "Calendar.reg")
    copy("build/bench/resources/Legals/France.xml", "data", "Corvalen", "orbisol", "Legals", "France.xml")
    screen = os.path.join(folder, "screen.json")
    with open(screen, "w", encoding="ascii") as file:
        file.write(SCREEN)
    os.makedirs(os.path.join(folder, "run"), mode=0o700)
    return {"PATH": os.environ["PATH"], "LC_ALL": "C", "HOME": folder, "XDG_CONFIG_HOME": f"{folder}/config",
            "XDG_DATA_HOME": f"{folder}/data", "XDG_CACHE_HOME": f"{folder}/cache", "XDG_RUNTIME_DIR": f"{folder}/run",
            "QT_QPA_PLATFORM": "offscreen:configfile=" + screen}


def start(path, environment):
    """Returns the running program, seconds until its first paint and until it was idle, and its peak memory in kB."""
    begin = time.perf_counter()
    program = subprocess.Popen([path], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, env=environment, text=True)
    report = {}
    while "settled" not in report:
        line = program.stdout.readline().split()
        if not line:
            sys.exit(f"{path} ended before its window was painted")
        report[line[0]] = (time.perf_counter() - begin, line[1:])
    return program, report["painted"][0], report["settled"][0], int(report["settled"][1][0])


def stop(program):
    program.kill()
    program.wait()
    program.stdout.close()


def measure_starts(folder, environment):
    """Returns {name: nanoseconds or bytes}, the medians of both programs, started in turns."""
    programs = {"Orbisol": "start_orbisol", "EmptyWindow": "start_empty"}
    rows = {who: [] for who in programs}
    for turn in range(STARTS + 1):
        for who, name in programs.items():
            program, painted, settled, kilobytes = start(os.path.join(folder, name), environment)
            stop(program)
            if turn > 0:
                rows[who].append((painted * 1e9, settled * 1e9, kilobytes * 1024))
    times = {}
    for column, group in enumerate(["FirstPaint", "Settled", "PeakBytes"]):
        for who in programs:
            times[f"{group}_{who}"] = statistics.median(row[column] for row in rows[who])
    return times


def activity(pid):
    """Returns the nanoseconds of processor time and the number of wake-ups, over all threads of a process."""
    nanoseconds = wakes = 0
    for task in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{task}/schedstat", encoding="ascii") as file:
            nanoseconds += int(file.read().split()[0])
        with open(f"/proc/{pid}/task/{task}/status", encoding="ascii") as file:
            wakes += sum(int(line.split()[1]) for line in file if line.startswith("voluntary_ctxt_switches"))
    return nanoseconds, wakes


def measure_idle(folder, environment):
    program = start(os.path.join(folder, "start_orbisol"), environment)[0]
    time.sleep(SETTLING_SECONDS)
    before = activity(program.pid)
    time.sleep(IDLE_SECONDS)
    after = activity(program.pid)
    stop(program)
    return {"IdleTime": after[0] - before[0], "IdleWakeUps": after[1] - before[1]}


def run_program(path, pattern, environment):
    """Returns {name: nanoseconds an item}, the medians of one bench program."""
    command = [path, "--benchmark_format=json", f"--benchmark_repetitions={REPETITIONS}",
               "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.1"]
    if pattern:
        command.append(f"--benchmark_filter={pattern}")
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=environment, text=True)
    if done.returncode != 0:
        sys.exit(f"{path} failed:\n{done.stderr}")
    if not done.stdout.strip():  # no bench of this program fits the filter
        return {}
    times = {}
    for row in json.loads(done.stdout)["benchmarks"]:
        if row.get("run_type") != "iteration" or row.get("error_occurred"):
            continue
        a_second = row.get("items_per_second")
        value = 1e9 / a_second if a_second else row["cpu_time"] * NANOSECONDS[row["time_unit"]]
        times.setdefault(row["run_name"], []).append(value)
    return {name: statistics.median(values) for name, values in times.items()}


def run_command(command, items):
    """Returns the nanoseconds an item, the median of a program that handles `items` of them."""
    seconds = []
    for _ in range(REPETITIONS):
        begin = time.perf_counter()
        subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True, cwd=ROOT)
        seconds.append(time.perf_counter() - begin)
    return statistics.median(seconds) * 1e9 / items


# Peers that are programs: what must be installed, their command, and how many items it makes. rem2pdf is in the
# package remind-tools.
PEERS = {
    "AllMonths_Remind": ("remind", ["remind", "-c600", "bench/peers/france.rem", "2000-01-01"], 600),
    "YearsOfTheEra_Gcal": ("gcal", ["gcal", "-n", "-q", "FR", "1+3999"], 12 * 3999),
    "PdfOfAYear_Rem2Pdf": ("rem2pdf", ["sh", "-c", "remind -ppp12 bench/peers/france.rem 2024-01-01 | "
                                       "rem2pdf --media=A4 --landscape -"], 1),
}


def print_measurements(times):
    groups = {}
    for name, value in times.items():
        group, _, who = name.partition("_")
        groups.setdefault(group, []).append((who or group, value))
    print(f"{'measured':<34}{'ns':>16}{'beside':>10}")
    for group, rows in groups.items():
        rows.sort(key=lambda row: row[0] != "Orbisol")  # interleaved runs come in any order
        ours = rows[0][1]
        for who, value in rows:
            beside = "" if who == rows[0][0] or value == 0 else f"{ours / value:10.3f}"
            print(f"{group + ' ' + who:<34}{value:>16,.1f}{beside}")


def main():
    folder = sys.argv[1]
    pattern = sys.argv[2] if len(sys.argv) > 2 else ""
    times = {}
    with tempfile.TemporaryDirectory() as home:
        environment = make_home(home)
        for program in sorted(os.listdir(folder)):
            if program.endswith("_bench"):
                times.update(run_program(os.path.join(folder, program), pattern, environment))
        if pattern in "FirstPaint Settled PeakBytes":
            times.update(measure_starts(folder, environment))
        if pattern in "IdleTime IdleWakeUps":
            times.update(measure_idle(folder, environment))
    for name, (program, command, items) in PEERS.items():
        if pattern and pattern not in name:
            continue
        if shutil.which(program) is None:
            print(f"{program} is not installed: {name} is not measured")
            continue
        times[name] = run_command(command, items)
    print_measurements(times)
    print()
    print_budgets(times)


if __name__ == "__main__":
    main()
