#!/bin/sh
# Pictures of the windows in build/screenshots/, at scale 1 and 2, taken from outside on a virtual
# display. The program starts with an empty home, so that every run shows the same calendar.
#
#   tools/screenshot.sh build/stage/bin/orbisol

set -u
cd "$(dirname "$0")/.." || exit 1
program=${1:?usage: tools/screenshot.sh PROGRAM}
[ -x "$program" ] || { echo "screenshot: $program is not there; the build does not install it" >&2; exit 1; }

folder=build/screenshots
mkdir -p "$folder"
. tools/virtual-display.sh
unset XDG_RUNTIME_DIR
HOME=$scratch/home XDG_CONFIG_HOME=$scratch/home/.config XDG_DATA_HOME=$scratch/home/.local/share
XDG_CACHE_HOME=$scratch/home/.cache
export HOME XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME
start_display 3840x2160 || exit 1

for scale in 1 2; do
  rm -rf "$HOME"
  mkdir -p "$HOME"
  QT_SCALE_FACTOR=$scale
  export QT_SCALE_FACTOR
  start_program "$program"
  wait_for_window "$scratch/screen.png" || exit 1
  mv "$scratch/window.png" "$folder/main_window@$scale.png" || exit 1
  close_program || exit 1
  echo "$PWD/$folder/main_window@$scale.png"
done
