#!/bin/sh
# Uses the installed program under Wayland, in a session of its own without a screen: opens its windows by their
# keys, has the compositor take their pictures, and checks what a picture does not show.
#
#   tools/wayland-session.sh [PROGRAM [FOLDER [SCALE]]]
#
# PROGRAM is build/stage/bin/orbisol unless given (`make run` puts it there), FOLDER for the pictures
# build/screenshots/wayland, SCALE of the screen 1. Checked are the desktop id of every window, the date on the
# clipboard, the size of the window after a second start, and that the program says nothing on its error output.
# Needs the packages of the group `wayland` (tools/install-packages.sh). The compositor refuses root, for whom
# everything runs as nobody.

set -u
cd "$(dirname "$0")/.." || exit 1
program=${1:-build/stage/bin/orbisol}
folder=${2:-build/screenshots/wayland}
scale=${3:-1}
id=org.corvalen.Orbisol
[ -x "$program" ] || { echo "wayland-session: $program is not there" >&2; exit 1; }

mkdir -p "$folder" || exit 1
scratch=$(mktemp -d) || exit 1
compositor= running= faults=0
clean_up() {
  for pid in $running $compositor; do kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null; done
  rm -rf "$scratch"
}
trap clean_up EXIT
trap 'exit 130' INT TERM HUP

# Becomes the command given.
become() {
  [ "$(id -u)" = 0 ] && exec setpriv --reuid=65534 --regid=65534 --clear-groups "$@"
  exec "$@"
}
as_user() { (become "$@"); }

fault() {
  echo "wayland-session: $*" >&2
  faults=$((faults + 1))
}

start_compositor() {
  cat >"$scratch/sway" <<END
output HEADLESS-1 resolution 1600x1000 scale $scale
output HEADLESS-1 bg #556677 solid_color
for_window [app_id=".*"] floating enable
xwayland disable
END
  mkdir -m 0700 "$scratch/home" "$scratch/run"
  [ "$(id -u)" = 0 ] && chown -R 65534:65534 "$scratch"
  unset DISPLAY WAYLAND_DISPLAY XDG_CONFIG_HOME XDG_DATA_HOME XDG_STATE_HOME XDG_CACHE_HOME
  export HOME="$scratch/home" XDG_RUNTIME_DIR="$scratch/run" LC_ALL=C.UTF-8 QT_QPA_PLATFORM=wayland
  WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 \
    become sway -c "$scratch/sway" >"$scratch/compositor.log" 2>&1 &
  compositor=$!
  for _ in $(seq 100); do
    SWAYSOCK=$(find "$scratch/run" -name 'sway-ipc.*')
    WAYLAND_DISPLAY=$(find "$scratch/run" -name 'wayland-?' -printf '%f')
    export SWAYSOCK WAYLAND_DISPLAY
    [ -n "$SWAYSOCK" ] && [ -n "$WAYLAND_DISPLAY" ] && return 0
    sleep 0.1
  done
  cat "$scratch/compositor.log" >&2
  return 1
}

# Prints one line for each window: desktop id, size, title.
windows() {
  as_user swaymsg -t get_tree | python3 -c '
import json, sys
def walk(node):
    if node.get("app_id") is not None:
        print(node["app_id"], "%(width)dx%(height)d" % node["rect"], node["name"])
    for child in node["nodes"] + node["floating_nodes"]:
        walk(child)
walk(json.load(sys.stdin))'
}

start_program() {
  become "$program" 2>>"$scratch/errors" &
  running=$!
  for _ in $(seq 100); do
    [ -n "$(windows)" ] && break
    sleep 0.1
  done
  sleep 1
}

end_program() {
  kill "$running"
  wait "$running" || fault "the program ended with $? at the end of the session"
  running=
}

# The first key of a new keyboard is lost while the window learns of it.
keys() { as_user wtype -P Shift_L -p Shift_L -s 200 "$@" && sleep 1; }

picture() {
  as_user grim - >"$folder/$1@$scale.png" || fault "no picture of $1"
  windows | grep -qv "^$id " && fault "a window of $1 has another desktop id: $(windows)"
}

start_compositor || exit 1
start_program
picture main
keys -M ctrl c -m ctrl
date=$(as_user timeout 5 wl-paste)
[ -n "$date" ] || fault "the date is not on the clipboard"
# window NAME CLOSING_KEY KEY...: opens it, takes its picture and closes it
window() {
  name=$1
  closing=$2
  shift 2
  keys "$@"
  [ "$(windows | wc -l)" = 2 ] || fault "$name: no window"
  picture "$name"
  if [ "$closing" = w ]; then keys -M ctrl w -m ctrl; else keys -k "$closing"; fi
}

window events Escape -M ctrl e -m ctrl
window preferences Escape -k F8
window goto Escape -M ctrl g -m ctrl
window find Escape -M ctrl f -m ctrl
window calendars Escape -M ctrl o -m ctrl
window print w -M ctrl p -m ctrl
window help Escape -k F1
end_program
start_program
as_user swaymsg "[title=\"^Orbisol\"] resize shrink width 30px" >/dev/null
sleep 0.5
before=$(windows)
end_program
start_program
[ "$(windows)" = "$before" ] || fault "the window was $before and is $(windows)"
end_program
[ -s "$scratch/errors" ] && fault "the program said: $(cat "$scratch/errors")"
echo "$date; $(ls "$folder" | wc -l) pictures in $folder, $faults faults"
[ "$faults" = 0 ]
