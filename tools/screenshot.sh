#!/bin/sh
# Draws the windows as PNG files in build/screenshots/, with the program given: the first window on three
# screens, everything else on a large one at scales 1, 1.25 and 2. Each run shows the same: no display, an
# empty home, the C locale and a day fixed inside the program.
#
#   tools/screenshot.sh build/dev/tools/screenshot/orbisol_screenshots          # all of them
#   tools/screenshot.sh build/dev/tools/screenshot/orbisol_screenshots fields   # one set, and the rest is kept

set -u
cd "$(dirname "$0")/.." || exit 1
program=${1:?usage: tools/screenshot.sh PROGRAM [SET...]}
[ -x "$program" ] || { echo "screenshot: $program is not there" >&2; exit 1; }
shift

folder=build/screenshots
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
trap 'exit 130' INT TERM HUP
mkdir -m 0700 "$scratch/run"

# take WIDTH HEIGHT SCALE SET...: the screen has that many points at scale 1
take() {
  cat >"$scratch/screen.json" <<END
{"screens": [{"name": "one", "x": 0, "y": 0, "width": $1, "height": $2,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}
END
  scale=$3
  shift 3
  env -i PATH="$PATH" LC_ALL=C HOME="$scratch" XDG_RUNTIME_DIR="$scratch/run" QT_SCALE_FACTOR="$scale" \
    QT_QPA_PLATFORM="offscreen:configfile=$scratch/screen.json" "$program" "$folder" "$@" 2>"$scratch/log" ||
    { cat "$scratch/log" >&2; exit 1; }
}

mkdir -p "$folder"
if [ $# -eq 0 ]; then
  rm -f "$folder"/*.png
  take 1366 768 1 first_window
  take 1920 1080 1 first_window
fi
for scale in 1 1.25 2; do
  take 3840 2160 "$scale" "$@"
done
echo "$(ls "$folder" | wc -l) pictures in $PWD/$folder"
