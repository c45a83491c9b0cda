#!/bin/sh
# Runs the tests in the coverage build and prints, layer by layer, which part of the lines and branches
# they reach. Branches that only an exception takes, and those the compiler cannot reach, do not count.
#
#   tools/coverage.sh [--lines]     --lines: also every file with the lines that no test reached

set -u
cd "$(dirname "$0")/.." || exit 1
build=build/coverage
cmake --preset coverage --log-level=WARNING && cmake --build --preset coverage || exit 1

# Counts of an earlier run would hide the lines that this one does not reach.
find "$build" -name '*.gcda' -delete
ctest --preset coverage || exit 1

gcovr -r . --object-directory "$build" --exclude-throw-branches --exclude-unreachable-branches \
  --filter '(core|content|files|settings|platform|ui)/' --exclude '.*/(moc_|mocs_|ui_|qrc_)' \
  -j 2 --json "$build/coverage.json" || exit 1
python3 tools/coverage_table.py "$build/coverage.json" "$@"
