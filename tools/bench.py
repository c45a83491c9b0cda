#!/usr/bin/env python3
"""Measures the program beside its peers and says which budgets hold.

    tools/bench.py FOLDER [FILTER]

FOLDER holds the bench programs (*_bench). Each is run for the median of five repetitions in random order, and the peers
that are programs of their own are timed in the same minutes. Two tables are printed: every measurement beside the
fastest of its peers, and one line a budget:

    B1  1.49  <= 1.70  ok

A budget that was missed says "short", and "near" where it was missed by no more than a tenth: these machines are
noisy. Missed budgets do not make the run fail.
"""

import json
import os
import statistics
import subprocess
import sys
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
REPETITIONS = 5
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def run_program(path, pattern):
    """{name: nanoseconds an item}, the medians of one bench program."""
    command = [path, "--benchmark_format=json", f"--benchmark_repetitions={REPETITIONS}",
               "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.1"]
    if pattern:
        command.append(f"--benchmark_filter={pattern}")
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C")
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
    """Nanoseconds an item, the median of a program that handles `items` of them."""
    seconds = []
    for _ in range(REPETITIONS):
        begin = time.perf_counter()
        subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True, cwd=ROOT)
        seconds.append(time.perf_counter() - begin)
    return statistics.median(seconds) * 1e9 / items


# Peers that are programs: what they print, and how many months that is.
PEERS = {
    "AllMonths_Remind": (["remind", "-c600", "bench/peers/france.rem", "2000-01-01"], 600),
    "YearsOfTheEra_Gcal": (["gcal", "-n", "-q", "FR", "1+3999"], 12 * 3999),
}


def ratio(times, ours, peers):
    """The sum of ours over the sum of the peers', or None where one was not measured."""
    if any(name not in times for name in ours + peers):
        return None
    return sum(times[name] for name in ours) / sum(times[name] for name in peers)


def scaled(times, name, factor):
    return times[name] * factor if name in times else None


# Identifier, what is measured, the figure made of the measurements, limit, unit.
BUDGETS = [
    ("B1", "date to day number, beside std::chrono",
     lambda t: ratio(t, ["DateToNumber_Orbisol"], ["DateToNumber_Chrono"]), 1.7, ""),
    ("B1", "date to day number, beside ICU", lambda t: ratio(t, ["DateToNumber_Orbisol"], ["DateToNumber_Icu"]),
     0.015, ""),
    ("B2", "day number to date, beside std::chrono",
     lambda t: ratio(t, ["NumberToDate_Orbisol"], ["NumberToDate_Chrono"]), 1.4, ""),
    ("B2", "day number to date, beside ICU", lambda t: ratio(t, ["NumberToDate_Orbisol"], ["NumberToDate_Icu"]),
     0.013, ""),
    ("B3", "both, beside QDate and QCalendar switched by hand",
     lambda t: ratio(t, ["DateToNumber_Orbisol", "NumberToDate_Orbisol"], ["DateToNumber_Qt", "NumberToDate_Qt"]),
     0.5, ""),
    ("B4", "phases of a month, beside the straight evaluation",
     lambda t: ratio(t, ["MonthOfPhases_Orbisol"], ["MonthOfPhases_Plain"]), 0.30, ""),
    ("B5", "all 95,988 months with phases and the days of France",
     lambda t: scaled(t, "AllMonths_WithMoon", 95988e-9), 0.8, "s"),
    ("B5", "one such month, beside remind", lambda t: ratio(t, ["AllMonths_WithMoon"], ["AllMonths_Remind"]), 0.012, ""),
    ("B6", "years 1 to 3999 without phases, beside gcal",
     lambda t: ratio(t, ["YearsOfTheEra_WithoutMoon"], ["YearsOfTheEra_Gcal"]), 0.6, ""),
    ("B7", "a month of 10,000 rules and 1,000 periods", lambda t: scaled(t, "CrowdedMonth/10000", 1e-6), 16, "ms"),
    ("B7", "four times the rules, four times the time: by how much more",
     lambda t: ratio(t, ["CrowdedMonth/10000"], ["CrowdedMonth/2500"] * 4), 1.2, ""),
]


def print_measurements(times):
    groups = {}
    for name, value in times.items():
        group, _, who = name.partition("_")
        groups.setdefault(group, []).append((who or group, value))
    print(f"{'measured':<34}{'ns':>16}{'beside':>10}")
    for group, rows in groups.items():
        ours = rows[0][1]
        for who, value in rows:
            beside = "" if who == rows[0][0] else f"{ours / value:10.3f}"
            print(f"{group + ' ' + who:<34}{value:>16,.1f}{beside}")


def print_budgets(times):
    for name, what, figure, limit, unit in BUDGETS:
        value = figure(times)
        if value is None:
            continue
        verdict = "ok" if value <= limit else "near" if value <= 1.1 * limit else "short"
        unit = f" {unit}" if unit else ""
        print(f"{name}  {value:.3f}{unit}  <= {limit:g}{unit}  {verdict:<5}  {what}")


def main():
    folder = sys.argv[1]
    pattern = sys.argv[2] if len(sys.argv) > 2 else ""
    times = {}
    for program in sorted(os.listdir(folder)):
        if program.endswith("_bench"):
            times.update(run_program(os.path.join(folder, program), pattern))
    for name, (command, items) in PEERS.items():
        if not pattern or pattern in name:
            times[name] = run_command(command, items)
    print_measurements(times)
    print()
    print_budgets(times)


if __name__ == "__main__":
    main()
