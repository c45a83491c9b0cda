#!/bin/sh
# Installs the packages that a command of the Makefile needs and that are missing.
#
#   tools/install-packages.sh GROUP...
#
# Groups: build run test clang lint coverage bench display wayland package fresh. On Debian and its relatives the missing ones
# are installed through apt-get, by root or sudo. Elsewhere their names are printed and the command ends
# with 1. With nothing missing it takes a tenth of a second and touches nothing.

set -eu

# Debian's name of the package, and how to tell elsewhere that it is there: a program, a module of
# pkg-config (pc:), or nothing to ask (-).
packages_of() {
  case $1 in
    build) echo "g++=g++ cmake=cmake ninja-build=ninja ccache=ccache python3=python3
                 qt6-base-dev=pc:Qt6PrintSupport qt6-svg-dev=pc:Qt6Svg" ;;
    run) echo "qt6-wayland=- qt6-image-formats-plugins=- qt6-translations-l10n=- fonts-dejavu=-" ;;
    test) echo "libgtest-dev=pc:gtest python3=python3 qt6-translations-l10n=- fonts-dejavu=-
                xvfb=Xvfb openbox=openbox xdotool=xdotool x11-utils=xprop
                poppler-utils=pdftotext dbus-daemon=dbus-run-session at-spi2-core=- python3-pyatspi=-" ;;
    clang) echo "clang=clang++ $(clang_runtime)=-" ;;
    lint) echo "clang-tidy=clang-tidy clang-format=clang-format git=git" ;;
    coverage) echo "gcovr=gcovr" ;;
    bench) echo "libbenchmark-dev=pc:benchmark libicu-dev=pc:icu-i18n remind=remind remind-tools=rem2pdf
                 gcal=gcal python3=python3" ;;
    package) echo "dpkg-dev=dpkg-shlibdeps file=file lintian=lintian desktop-file-utils=desktop-file-validate
                   appstream=appstreamcli man-db=man mandoc=mandoc" ;;
    fresh) echo "debootstrap=debootstrap util-linux=unshare" ;;
    display) echo "xvfb=Xvfb openbox=openbox xdotool=xdotool imagemagick=import x11-utils=xprop" ;;
    wayland) echo "qt6-wayland=- sway=sway grim=grim wtype=wtype wl-clipboard=wl-paste python3=python3" ;;
    *) echo "install-packages: no group is called '$1'" >&2; return 1 ;;
  esac
}

# The sanitizers and libFuzzer are in a package of the compiler's own version.
clang_runtime() {
  if dpkg-query -S "$(command -v clang++)" >/dev/null 2>&1; then
    version=$(clang++ -dumpversion)
    echo "libclang-rt-${version%%.*}-dev"
  else
    echo libclang-rt-dev
  fi
}

is_there() {  # program, pc:module or -
  case $1 in
    -) true ;;
    pc:*) ! command -v pkg-config >/dev/null || pkg-config --exists "${1#pc:}" ;;  # else CMake will tell
    *) command -v "$1" >/dev/null ;;
  esac
}

wanted=
for group; do
  list=$(packages_of "$group")
  wanted="$wanted $list"
done
[ -n "$wanted" ] || { echo "usage: tools/install-packages.sh GROUP..." >&2; exit 2; }

missing=
if command -v apt-get >/dev/null && command -v dpkg-query >/dev/null; then
  installed=" $(dpkg-query -W -f '${db:Status-Status}=${Package} ' 2>/dev/null) "
  for entry in $wanted; do
    package=${entry%%=*}
    case "$installed$missing " in
      *" installed=$package "* | *" $package "*) ;;
      *) missing="$missing $package" ;;
    esac
  done
else
  for entry in $wanted; do
    package=${entry%%=*}
    is_there "${entry#*=}" || missing="$missing $package"
  done
  [ -z "$missing" ] && exit 0
  echo "This is no Debian system, so nothing can be installed here. Missing, by the names that Debian" >&2
  echo "gives them; please install what they are called on this system, then call this again:" >&2
  printf '  %s\n' $missing >&2
  exit 1
fi
[ -n "$missing" ] || exit 0

as_root=
if [ "$(id -u)" != 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Missing packages, and neither root nor sudo to install them. As root, please call:" >&2
    echo "  apt-get install --no-install-recommends$missing" >&2
    exit 1
  fi
  as_root=sudo
  [ -t 0 ] || as_root='sudo -n'  # there is nobody to type a password
fi

apt() {
  $as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0 "$@"
}

echo "Installing:$missing"
apt update || echo "The lists of packages could not be renewed; trying with those at hand." >&2
if ! apt install -y --no-install-recommends $missing; then
  echo "The packages could not be installed:$missing" >&2
  exit 1
fi
