#!/usr/bin/env bash
# Does what a person does who has just cloned this tree, on a Debian 12 and a Debian 13 with nothing on them: builds and
# runs the program, then its tests. Needs root and debootstrap. The systems stay in build/debian with the packages and
# the compiler cache that the first run brought; the tree goes in anew each time. Usage: check_debian.sh [RELEASE…]
set -euo pipefail
cd "$(dirname "$0")/.."

[ "$(id -u)" -eq 0 ] || { echo "check-debian: has to be run by root" >&2; exit 1; }
command -v debootstrap >/dev/null || { echo "check-debian: install debootstrap first" >&2; exit 1; }

if [ $# -ne 1 ]; then
  failed=0
  [ $# -gt 0 ] || set -- bookworm trixie
  for release; do
    if "scripts/${0##*/}" "$release"; then
      echo "check-debian: $release passes"
    else
      echo "check-debian: $release FAILS" >&2
      failed=1
    fi
  done
  exit $failed
fi

release=$1
root=$PWD/build/debian/$release
tree=$root/root/vantrix

# make is all that the two commands of the README take for granted.
if [ ! -e "$root/prepared" ]; then
  rm -rf "$root"
  mkdir -p "$root"
  debootstrap --variant=minbase --include=make "$release" "$root" >"$root.log" 2>&1 ||
    { echo "check-debian: $release could not be set up, see $root.log" >&2; exit 1; }
  touch "$root/prepared"
fi

cp /etc/resolv.conf "$root/etc/resolv.conf"
rm -rf "$tree"
mkdir "$tree"
git ls-files -z | tar --create --null --files-from=- | tar --extract --directory="$tree"

# Mounts and processes of its own, none of which outlive it.
# shellcheck disable=SC2016 # expands in the shell that it is handed to
unshare --mount --pid --fork --kill-child -- bash -euc '
  mount -t proc proc "$1/proc"
  mount --rbind /sys "$1/sys"
  mount --rbind /dev "$1/dev"
  mount -t tmpfs tmpfs "$1/tmp"
  mount -t tmpfs tmpfs "$1/run"
  exec env -i HOME=/root LANG=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin chroot "$1" \
    bash -euc "cd /root/vantrix; make run ARGS=\"--print text --count 1\"; make test" </dev/null
' bash "$root"
