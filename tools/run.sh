#!/bin/sh
# Starts the program; without a display it starts on a virtual one, has its picture taken and closes.
#
#   tools/run.sh build/stage/bin/orbisol

set -u
cd "$(dirname "$0")/.." || exit 1
program=${1:?usage: tools/run.sh PROGRAM}
[ -x "$program" ] || { echo "run: $program is not there; the build does not install it" >&2; exit 1; }

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$program"
fi

echo "No display here: starting on a virtual one."
tools/install-packages.sh display || exit 1
picture=build/screenshots/run.png
rm -f "$picture"
. tools/virtual-display.sh
start_display 1920x1080 && start_program "$program" && wait_for_window "$picture" && close_program || exit 1
echo "The window as it stood on the screen: $PWD/$picture"
