#!/usr/bin/env bash
# Installs, upgrades, starts and removes the package of build/packages, or the release's own of build/packages-RELEASE,
# in fresh systems of Debian, and tells what it leaves behind. Needs root and debootstrap. The systems stay in
# build/debian; what happens in them does not.
# Usage: check_package.sh [RELEASE…]
set -euo pipefail
cd "$(dirname "$0")/.."

[ $# -gt 0 ] || set -- bookworm trixie

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

take_package() {
  local folder=build/packages-$1
  [ -d "$folder" ] || folder=build/packages
  cp "$folder"/vantrix_*.deb "$work/new.deb"
  # The same as an older version, so that there is something to upgrade.
  rm -rf "$work/older"
  dpkg-deb --raw-extract "$work/new.deb" "$work/older"
  sed -i 's/^Version: .*/&~older/' "$work/older/DEBIAN/control"
  dpkg-deb --root-owner-group --build "$work/older" "$work/old.deb" >/dev/null
}

cat >"$work/try.sh" <<'TRY'
set -euo pipefail
export DEBIAN_FRONTEND=noninteractive
list() { find / -xdev \( -path /packages -o -path /proc -o -path /sys -o -path /dev -o -path /tmp -o -path /run \
  -o -path /var/log -o -path /var/cache -o -path /var/lib/apt -o -path '/var/lib/dpkg/*-old' \) -prune -o -print | sort; }
apt-get update -qq
# What the package depends on comes first: it is to stay.
dpkg-deb --field /packages/new.deb Depends | tr ',' '\n' | sed 's/^ *//; s/ .*//' | xargs \
  apt-get install -qq --no-install-recommends xvfb xauth x11-utils dbus-daemon libglib2.0-bin >/dev/null
list >/tmp/before
dpkg --install /packages/old.deb
dpkg --install /packages/new.deb
[ "$(dpkg-query --show --showformat '${Version}' vantrix)" = "$(dpkg-deb --field /packages/new.deb Version)" ]
vantrix --print text --count 1
# As the menu starts it, with a user's folders of its own.
export XDG_CONFIG_HOME=/tmp/config XDG_STATE_HOME=/tmp/state XDG_RUNTIME_DIR=/tmp/runtime HOME=/tmp
mkdir -m 700 /tmp/runtime
entry=$(sed -n 's/^Exec=//p' /usr/share/applications/app.vantrix.Vantrix.desktop | head -n 1)
xvfb-run -a bash -euc "$entry & program=\$!
  for turn in {1..100}; do vantrix --quit 2>/dev/null && break; sleep 0.1; done
  wait \$program"
echo "started from the menu entry, and ended"
# As a desktop does: the bus starts it, and the popover opens, 340 pixels wide.
xvfb-run -a dbus-run-session -- bash -euc 'gapplication launch app.vantrix.Vantrix
  for turn in {1..100}; do xwininfo -root -tree | grep -q "\"vantrix\") *340x" && break; sleep 0.1; done
  xwininfo -root -tree | grep "\"vantrix\") *340x"
  vantrix --quit'
echo "opened its popover by activation, and ended"
dpkg --purge vantrix
list >/tmp/after
diff /tmp/before /tmp/after
TRY

for release; do
  root=$(scripts/debian_root.sh "$release")
  take_package "$release"
  # Mounts and processes of its own; what is written goes into memory.
  # shellcheck disable=SC2016 # expands in the shell that it is handed to
  unshare --mount --pid --fork --kill-child -- bash -euc '
    mount -t tmpfs tmpfs /mnt
    mkdir /mnt/upper /mnt/work /mnt/root
    mount -t overlay -o "lowerdir=$1,upperdir=/mnt/upper,workdir=/mnt/work" overlay /mnt/root
    root=/mnt/root
    mkdir -p "$root/packages"
    mount --bind "$2" "$root/packages"
    mount -t proc proc "$root/proc"
    mount --rbind /sys "$root/sys"
    mount --rbind /dev "$root/dev"
    mount -t tmpfs tmpfs "$root/tmp"
    mount -t tmpfs tmpfs "$root/run"
    exec env -i HOME=/root LANG=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin chroot "$root" bash /packages/try.sh </dev/null
  ' bash "$root" "$work" || { echo "check-package: $release FAILS" >&2; exit 1; }
  echo "check-package: $release passes"
done
