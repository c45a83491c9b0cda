#!/bin/sh
# Pictures of the windows in build/screenshots/, at scale 1 and 2, with the drawing program given. Each run
# shows the same: no display, an empty home, the C locale and a day fixed inside the program.
#
#   tools/screenshot.sh build/dev/tools/screenshot/orbisol_screenshots

set -u
cd "$(dirname "$0")/.." || exit 1
program=${1:?usage: tools/screenshot.sh PROGRAM}
[ -x "$program" ] || { echo "screenshot: $program is not there" >&2; exit 1; }

folder=build/screenshots
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
trap 'exit 130' INT TERM HUP
mkdir -m 0700 "$scratch/run"
cat >"$scratch/screen.json" <<END
{"screens": [{"name": "one", "x": 0, "y": 0, "width": 3840, "height": 2160,
  "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]}
END

rm -rf "$folder"
mkdir -p "$folder"
for scale in 1 2; do
  env -i PATH="$PATH" LC_ALL=C HOME="$scratch" XDG_RUNTIME_DIR="$scratch/run" QT_SCALE_FACTOR=$scale \
    QT_QPA_PLATFORM="offscreen:configfile=$scratch/screen.json" "$program" "$folder" 2>"$scratch/log" ||
    { cat "$scratch/log" >&2; exit 1; }
done
echo "$(ls "$folder" | wc -l) pictures in $PWD/$folder"
