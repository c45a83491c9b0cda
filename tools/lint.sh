#!/bin/sh
# clang-format and clang-tidy over the sources; every finding is a fault.
#
#   tools/lint.sh         all of them
#   tools/lint.sh --ci    all without Qt, and those with Qt that the last 20 commits touched: a source
#                         with Qt takes ten times as long; these and the tests without the slowest checks

set -u
cd "$(dirname "$0")/.." || exit 1
export LC_ALL=C
status=0

# git must accept a clone that belongs to another account.
export GIT_CONFIG_COUNT=1 GIT_CONFIG_KEY_0=safe.directory GIT_CONFIG_VALUE_0='*'
mkdir -p build
git ls-files -co --exclude-standard -- '*.cpp' '*.h' >build/lint-listed || exit 1
while read -r file; do
  if [ -f "$file" ]; then echo "$file"; fi  # git still lists a deleted file until the next commit
done <build/lint-listed >build/lint-formatted
echo "clang-format: $(wc -l <build/lint-formatted) files"
xargs -r clang-format --dry-run -Werror --ferror-limit=1 <build/lint-formatted || status=1

# The build records how each source is compiled, and makes the generated headers.
preset=dev
case ${CI:-} in true | 1) preset=ci ;; esac
build=build/$preset
{ cmake --preset "$preset" && cmake --build --preset "$preset"; } >build/lint-build.log 2>&1 ||
  { tail -n 40 build/lint-build.log; exit 1; }

python3 tools/lint_sources.py "$build/compile_commands.json" build/lint "$@" >build/lint-sources || exit 1
echo "clang-tidy: $(wc -l <build/lint-sources) sources"
xargs -r -P 2 -n 2 clang-tidy --quiet -p build/lint <build/lint-sources 2>build/lint-tidy.log ||
  { status=1; grep -v ' warnings\? generated\|warnings treated as errors' build/lint-tidy.log; }
[ "$status" = 0 ] && echo "Nothing to complain about."
exit "$status"
