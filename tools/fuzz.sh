#!/bin/sh
# Runs every fuzzer for FUZZ_SECONDS (30), two at a time, from the corpus kept in fuzz/corpus/NAME and the files
# of the tests that it can read. Of the folders given to a fuzzer, only the first is ever written to.
# What a run discovers stays in build/fuzz/found/NAME, what it breaks in build/fuzz/crashes/.
# Prints one line for each; ends with 1 when one failed.

set -u
cd "$(dirname "$0")/.." || exit 1
cmake --preset fuzz --log-level=WARNING && cmake --build --preset fuzz || exit 1

seconds=${FUZZ_SECONDS:-30}
mkdir -p build/fuzz/crashes build/fuzz/logs
export seconds

run_one='
  name=${1##*/fuzz_}
  mkdir -p "build/fuzz/found/$name"
  kept=
  case $name in
    calendar_file) tests=tests/data/files ;;
    settings_store) tests=tests/data/settings ;;
    *) tests= ;;
  esac
  for folder in "fuzz/corpus/$name" $tests; do
    [ -d "$folder" ] && kept="$kept $folder"
  done
  if "$1" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
      -artifact_prefix="build/fuzz/crashes/$name-" "build/fuzz/found/$name" $kept >"build/fuzz/logs/$name" 2>&1
  then
    echo "fuzz $name: ok, $(sed -n "s/^stat::number_of_executed_units: *//p" "build/fuzz/logs/$name") inputs"
  else
    echo "fuzz $name: failed"
    tail -n 40 "build/fuzz/logs/$name"
    exit 1
  fi'
found=$(find build/fuzz/fuzz -maxdepth 1 -type f -name 'fuzz_*' -perm -u+x | sort)
[ -n "$found" ] || { echo "fuzz: the build made no fuzzer" >&2; exit 1; }
echo "$found" | xargs -P 2 -n 1 sh -c "$run_one" fuzz
