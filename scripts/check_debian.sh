#!/usr/bin/env bash
# Does what a person does who has just cloned this tree, on a Debian 12 and a Debian 13 with nothing on them: builds and
# runs the program, then its tests, then makes the package, which comes back into build/packages-RELEASE. Needs root and
# debootstrap. The systems stay in build/debian with the packages and the compiler cache that the first run brought; the
# tree goes in anew each time. Usage: check_debian.sh [RELEASE…]
set -euo pipefail
cd "$(dirname "$0")/.."

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
root=$(scripts/debian_root.sh "$release")
tree=$root/root/vantrix

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
    bash -euc "cd /root/vantrix; make run ARGS=\"--print text --count 1\"; make test
      scripts/setup.sh package; git init --quiet; git add --all; make package" </dev/null
' bash "$root"
rm -rf "build/packages-$release"
cp -r "$tree/build/packages" "build/packages-$release"
