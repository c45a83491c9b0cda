#!/usr/bin/env python3
"""Prints the sources that clang-tidy is to read, each behind its checks as an option, and writes how they are compiled
in words clang knows.

    tools/lint_sources.py build/dev/compile_commands.json build/lint [--ci]

The second argument is the folder that receives a compile_commands.json without g++'s precompiled headers.
"""

import json
import os
import re
import shlex
import subprocess
import sys

COMMITS = 20
# Checks that walk through all headers of Qt or of the test library, or simulate every path: three fifths of the
# time of such a source.
SLOW = ["clang-analyzer-*", "bugprone-reserved-identifier", "bugprone-stringview-nullptr"]


def touched():
    """Paths that the last commits changed, and what is not committed yet."""
    def git(*words):
        result = subprocess.run(["git", *words], capture_output=True, text=True, check=False)
        return result.stdout.splitlines() if result.returncode == 0 else []

    names = git("log", f"-{COMMITS}", "--name-only", "--format=")
    names += git("diff", "--name-only", "HEAD") + git("ls-files", "-o", "--exclude-standard")
    return set(names)


def for_clang(words):
    """Drops '-include .../cmake_pch.hxx', which clang cannot read in g++'s form, and what only g++ knows."""
    kept = []
    for word in words:
        if word.endswith("cmake_pch.hxx") and kept:
            while kept and kept[-1] in ("-include", "-Xclang", "-include-pch"):
                kept.pop()
        elif word not in ("-Winvalid-pch", "-fprofile-abs-path"):
            kept.append(word)
    return kept + ["-Wno-unknown-warning-option"]


def main(commands_path, out_folder, *options):
    root = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
    build = os.path.dirname(os.path.realpath(commands_path))
    with open(commands_path, encoding="utf-8") as source:
        commands = json.load(source)

    recent = touched() if "--ci" in options else None
    kept, chosen, quick = [], {}, set()
    for entry in commands:
        path = os.path.realpath(os.path.join(entry["directory"], entry["file"]))
        if path.startswith(build + os.sep) or not path.endswith(".cpp"):
            continue  # made by the build
        words = for_clang(shlex.split(entry["command"]))
        kept.append({"directory": entry["directory"], "file": path, "command": shlex.join(words)})
        has_qt = any(re.search(r"-DQT_CORE_LIB\b", word) for word in words)
        relative = os.path.relpath(path, root)
        chosen[relative] = recent is None or not has_qt or relative in recent
        if recent is not None and (has_qt or relative.startswith("tests/")):
            quick.add(relative)

    os.makedirs(out_folder, exist_ok=True)
    with open(os.path.join(out_folder, "compile_commands.json"), "w", encoding="utf-8") as out:
        json.dump(kept, out, indent=1)
    for relative in sorted(chosen):
        if chosen[relative]:
            print("--checks=" + (",".join("-" + check for check in SLOW) if relative in quick else ""), relative)


main(*sys.argv[1:])
