# A virtual display for a program without one, to be sourced:
#
#   start_display WIDTHxHEIGHT      an X server with a window manager; sets DISPLAY
#   start_program PROGRAM           in the background
#   wait_for_window PICTURE         until its first window is painted, which PICTURE then shows
#   close_program                   closes it as a user does; fails when it ended badly
#
# Every function prints what went wrong and returns 1. All that was started ends with the shell.

windowSeconds=60   # enough for a first start on a slow machine
closeSeconds=20

scratch=$(mktemp -d)
serverPid= managerPid= programPid= window=

clean_up() {
  for pid in $programPid $managerPid $serverPid; do
    kill "$pid" 2>/dev/null && wait "$pid" 2>/dev/null
  done
  rm -rf "$scratch"
}
trap clean_up EXIT
trap 'exit 130' INT TERM HUP

complain() {
  echo "${0##*/}: $*" >&2
  return 1
}

is_running() {
  [ -n "$1" ] && kill -0 "$1" 2>/dev/null
}

# Calls a command ten times a second until it succeeds or the seconds are over.
wait_until() {  # seconds command...
  tries=$(($1 * 10))
  shift
  while [ "$tries" -gt 0 ]; do
    if "$@"; then return 0; fi
    sleep 0.1
    tries=$((tries - 1))
  done
  return 1
}

start_display() {
  Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$scratch/number" >"$scratch/server.log" 2>&1 &
  serverPid=$!
  wait_until 30 test -s "$scratch/number" || { cat "$scratch/server.log" >&2; complain "no X server"; return 1; }
  DISPLAY=:$(cat "$scratch/number")
  export DISPLAY
  unset WAYLAND_DISPLAY
  QT_QPA_PLATFORM=xcb
  export QT_QPA_PLATFORM
  if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
    XDG_RUNTIME_DIR=$scratch/run
    mkdir -m 0700 "$XDG_RUNTIME_DIR"
    export XDG_RUNTIME_DIR
  fi
  # openbox gets its own cache folder, because it would leave a log in the user's.
  XDG_CACHE_HOME=$scratch/cache openbox >"$scratch/manager.log" 2>&1 &
  managerPid=$!
  wait_until 30 has_manager || { cat "$scratch/manager.log" >&2; complain "no window manager"; return 1; }
}

has_manager() {
  xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'
}

start_program() {
  programName=${1##*/}
  window=
  "$1" </dev/null &
  programPid=$!
}

# Succeeds when the window is there, or when the program is gone: wait_for_window then reports why.
find_window() {
  is_running "$programPid" || return 0
  window=$(timeout 10 xdotool search --onlyvisible --class "^$programName\$" 2>/dev/null | head -n 1)
  [ -n "$window" ]
}

# Succeeds when something is drawn in the window and two pictures of it are the same.
is_painted() {
  is_running "$programPid" || return 0
  now=$(import -silent -window "$window" "$scratch/window.png" 2>/dev/null &&
    identify -format '%k %#' "$scratch/window.png" 2>/dev/null)
  before=$seen
  seen=$now
  [ -n "$now" ] && [ "${now%% *}" -gt 1 ] && [ "$now" = "$before" ]
}

wait_for_window() {
  wait_until "$windowSeconds" find_window ||
    { complain "$programName shows no window after $windowSeconds s"; return 1; }
  seen=
  wait_until "$windowSeconds" is_painted ||
    { complain "the window of $programName stays blank or never settles"; return 1; }
  if ! is_running "$programPid"; then
    wait "$programPid"
    status=$?
    programPid=
    complain "$programName ended with $status before its window was painted"
    return 1
  fi
  mkdir -p "$(dirname "$1")"
  import -silent -window root "$1" || complain "no picture could be taken"
}

has_ended() {
  ! is_running "$programPid"
}

close_program() {
  timeout 10 xdotool windowactivate --sync "$window" 2>/dev/null
  timeout 10 xdotool key --clearmodifiers alt+F4 2>/dev/null
  if ! wait_until "$closeSeconds" has_ended; then
    complain "$programName does not close"
    return 1
  fi
  wait "$programPid"
  status=$?
  programPid=
  [ "$status" = 0 ] || complain "$programName ended with $status when it was closed"
}
