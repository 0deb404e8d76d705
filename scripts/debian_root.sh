#!/usr/bin/env bash
# Makes a Debian with nothing on it in build/debian, unless there is one, and tells where. Needs root and debootstrap.
# Usage: debian_root.sh RELEASE
set -euo pipefail
cd "$(dirname "$0")/.."

[ "$(id -u)" -eq 0 ] || { echo "debian-root: has to be run by root" >&2; exit 1; }
command -v debootstrap >/dev/null || { echo "debian-root: install debootstrap first" >&2; exit 1; }

root=$PWD/build/debian/$1
# make is all that the two commands of the README take for granted.
if [ ! -e "$root/prepared" ]; then
  rm -rf "$root"
  mkdir -p "$root"
  debootstrap --variant=minbase --include=make "$1" "$root" >"$root.log" 2>&1 ||
    { echo "debian-root: $1 could not be set up, see $root.log" >&2; exit 1; }
  touch "$root/prepared"
fi
cp /etc/resolv.conf "$root/etc/resolv.conf"
echo "$root"
