#!/bin/sh
# Makes the Debian package of a build and checks it.
#
#   tools/package.sh build/release        # build/release/package/orbisol_0.1.0_amd64.deb
#
# The same sources give the same bytes, whenever and in whatever folder they are built: all that stands in the package
# bears the date of the newest release. Ends with 1 where the desktop entry, the description for software centers, a
# manual page or the package is found faulty; warnings about the package are faults on a build server only, because a
# later release of the checker knows more of them.

set -u
umask 022              # for the folders in the package
export LC_ALL=C.UTF-8  # for the names of the public calendars, which CPack cannot read elsewhere
cd "${1:?usage: tools/package.sh BUILD}" || exit 1
packages=$PWD/package
rm -rf "$packages"
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/changelog.gz -S Timestamp) || exit 1
export SOURCE_DATE_EPOCH
log=$(cpack --config CPackConfig.cmake -B "$packages" 2>&1) || { echo "$log" >&2; exit 1; }
rm -rf "$packages/_CPack_Packages"
package=$(ls "$packages"/*.deb)

content=$(mktemp -d) || exit 1
trap 'rm -rf "$content"' EXIT
dpkg-deb -x "$package" "$content" || exit 1
share=$content/usr/share
faults=0

check() {  # command...
  "$@" && return
  echo "package: found by $1" >&2
  faults=$((faults + 1))
}

manual() {  # page
  complaints=$(MANWIDTH=80 man --warnings -l "$1" 2>&1 >/dev/null)
  [ -z "$complaints" ] || { echo "$complaints" >&2; return 1; }
  mandoc -T lint -W warning "$1"
}

check desktop-file-validate "$share"/applications/*.desktop
check appstreamcli validate --no-net "$share"/metainfo/*.xml
for page in "$share"/man/man1/* "$share"/man/*/man1/*; do check manual "$page"; done
check lintian --allow-root --fail-on "error${CI:+,warning}" "$package"

sha256sum "$package"
[ "$faults" = 0 ]
