#!/bin/sh
# Builds the package of a commit twice, in two folders, and compares the bytes.
#
#   tools/reproducible.sh [COMMIT]    # HEAD
#
# The two differ in the folder, in the times of all files, in umask, time zone and language. It takes two whole builds.

set -u
cd "$(dirname "$0")/.." || exit 1
tools/install-packages.sh build package || exit 1
commit=$(git rev-parse --verify "${1:-HEAD}^{commit}") || exit 1
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
trap 'exit 130' INT TERM HUP

build() {  # folder umask
  umask "$2"
  mkdir -p "$1"
  git archive "$commit" | tar -x -C "$1" --touch || return 1
  (
    cd "$1" || exit 1
    export CCACHE_DISABLE=1
    { cmake --preset release --log-level=WARNING && cmake --build --preset release && tools/package.sh build/release; } \
      >build.log 2>&1 || { tail -n 20 build.log; exit 1; }
  )
}

(TZ=UTC LC_ALL=C build "$scratch/one" 022) &&
  (TZ=Pacific/Auckland LC_ALL=C.UTF-8 build "$scratch/a second/folder" 077) || exit 1
first=$(ls "$scratch"/one/build/release/package/*.deb)
second=$(ls "$scratch/a second"/folder/build/release/package/*.deb)
sha256sum "$first" "$second"
cmp "$first" "$second" && echo "The same bytes twice: $(wc -c <"$first")"
