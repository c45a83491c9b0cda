#!/bin/sh
# Installs a package into a fresh Debian 12, uses the program there as a new user and removes it again.
#
#   tools/try-package.sh build/release/package/orbisol_0.1.0_amd64.deb    # as root, with a network
#
# The user is French and has no files. The program is started twice: the second time its window must stand where it was
# left. Then the package is purged: everything of it must be gone, and every file of the user still be there. The screen
# is outside of the fresh system, so that nothing but the package and what it asks for is installed there. The pictures
# of both starts lie in build/screenshots. The fresh system is kept in build/debian-12, so that a second trial takes
# less time.

set -u
[ "$(id -u)" = 0 ] || { echo "try-package: only root can enter a fresh system" >&2; exit 1; }
# What is mounted here is gone when the script ends, however it ends.
[ -n "${ORBISOL_OWN_MOUNTS:-}" ] || exec env ORBISOL_OWN_MOUNTS=1 unshare --mount --propagation private "$0" "$@"

package=$(realpath "${1:?usage: tools/try-package.sh PACKAGE}") || exit 1
cd "$(dirname "$0")/.." || exit 1
tools/install-packages.sh display fresh || exit 1
. tools/virtual-display.sh

base=build/debian-12
root=$PWD/build/try-package
user=1000
home=/home/eva

step() {
  echo "== $*"
}

fail() {
  complain "$*"
  exit 1
}

make_base() {
  [ -e "$base/complete" ] && return
  rm -rf "$base"
  mkdir -p build
  debootstrap --variant=minbase --include=locales bookworm "$base" >"$scratch/base.log" 2>&1 ||
    { tail -n 5 "$scratch/base.log" >&2; fail "no fresh system"; }
  chroot "$base" localedef -i fr_FR -f UTF-8 fr_FR.UTF-8 || exit 1
  printf '#!/bin/sh\nexit 101\n' >"$base/usr/sbin/policy-rc.d" && chmod +x "$base/usr/sbin/policy-rc.d" # starts no service
  touch "$base/complete"
}

in_root() {  # command...
  chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@" \
    >"$scratch/root.log" 2>&1 || { cat "$scratch/root.log" >&2; fail "'$*' failed in the fresh system"; }
}

# All files outside of what is the user's, which is the home folder and that of the session, and of what the packaging
# system notes about itself.
files_of_system() {
  (cd "$root" && find . -xdev \( -path ./proc -o -path ./dev -o -path ./home -o -path ./run/user -o -path ./tmp/.X11-unix -o \
    -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/cache/apt \) -prune -o -print | sort)
}

files_of_user() {
  (cd "$root$home" && find . -type f -exec sha256sum {} + | sort -k 2)
}

start_as_user() {  # picture
  mkdir -p "$scratch/bin"
  cat >"$scratch/bin/orbisol" <<END
#!/bin/sh
exec chroot --userspec=$user:$user "$root" env -i PATH=/usr/bin:/bin HOME=$home LANG=fr_FR.UTF-8 DISPLAY=$DISPLAY \
  XDG_RUNTIME_DIR=/run/user/$user orbisol
END
  chmod +x "$scratch/bin/orbisol"
  start_program "$scratch/bin/orbisol" && wait_for_window "$1" || exit 1
  echo "   the window: $PWD/$1"
}

place_of_window() {
  xwininfo -id "$window" | sed -n 's/^ *\(Absolute upper-left [XY]\|Width\|Height\): *//p' | tr '\n' ' '
}

step "A fresh Debian 12"
make_base
rm -rf "$root"
cp -a "$base" "$root" && rm "$root/complete" || exit 1
cp /etc/resolv.conf "$root/etc/"
mount -t proc proc "$root/proc" && mkdir -p "$root/dev/shm" /tmp/.X11-unix "$root/tmp/.X11-unix" &&
  mount -t tmpfs tmpfs "$root/dev/shm" && mount --bind /tmp/.X11-unix "$root/tmp/.X11-unix" || exit 1
in_root useradd --create-home --home-dir "$home" --uid "$user" eva
mkdir -p "$root/run/user/$user" && chown "$user:$user" "$root/run/user/$user" && chmod 0700 "$root/run/user/$user"
in_root apt-get update
files_of_system >"$scratch/before"

step "Installing the package with apt"
cp "$package" "$root/tmp/package.deb"
in_root apt-get install -y /tmp/package.deb
files_of_system >"$scratch/installed"
chroot "$root" dpkg-query --listfiles orbisol | sed 's/^/./' | sort | comm -23 - "$scratch/before" >"$scratch/own"
echo "   $(grep -c . "$scratch/own") files and folders of its own"

step "A first start, the window moved, and a second start"
start_display 1600x1000 || exit 1
start_as_user build/screenshots/package-first.png
xdotool windowsize --sync "$window" 1100 700 windowmove --sync "$window" 137 91 || exit 1
sleep 1
place=$(place_of_window)
close_program || exit 1
start_as_user build/screenshots/package-second.png
again=$(place_of_window)
[ "$place" = "$again" ] || fail "the window stood at $place, and at $again after the second start"
close_program || exit 1
echo "   both times it stood at $place"
files_of_system | diff "$scratch/installed" - || fail "the program has written outside of the user's home"

step "Removing the package, beside a calendar of the user"
mkdir -p "$root$home/.local/share/Corvalen/orbisol"
cp "$root/usr/share/orbisol/Legals/France.xml" "$root$home/.local/share/Corvalen/orbisol/Famille.xml"
files_of_user >"$scratch/user"
in_root apt-get purge -y --autoremove orbisol
files_of_user | cmp "$scratch/user" - || fail "files of the user have changed"
sed 's/^[0-9a-f]*/   kept:/' "$scratch/user"
files_of_system | comm -12 "$scratch/own" - >"$scratch/left"
files_of_system | grep -i 'orbisol\|corvalen' >>"$scratch/left"
if [ -s "$scratch/left" ]; then
  cat "$scratch/left"
  fail "the files above were left behind"
fi
echo "   nothing is left of it outside of the user's home"
