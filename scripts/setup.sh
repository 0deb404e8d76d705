#!/usr/bin/env bash
# Installs the packages that the named groups of work need and this machine lacks.
# Groups: build test check package fuzz bench budgets peers truth debian soak hosts.
set -euo pipefail

declare -A packages=(
  [build]="g++ cmake ninja-build ccache pkg-config qt6-base-dev qt6-svg-dev qt6-l10n-tools libxcb1-dev libnl-genl-3-dev"
  [test]="libgtest-dev libgmock-dev dbus xvfb xauth fonts-dejavu-core"
  [check]="clang clang-format clang-tidy git desktop-file-utils appstream mandoc zsh fish"
  [package]="build-essential debhelper dpkg-dev fakeroot git lintian blhc"
  [fuzz]="clang libclang-rt-dev libgtest-dev"
  [bench]="libbenchmark-dev libgtop2-dev libproc2-dev dbus xvfb xauth"
  [budgets]="valgrind strace python3 dbus xvfb xauth fonts-dejavu-core"
  [peers]="conky-std gkrellm btop sway waybar trayer python3"
  [truth]="stress-ng iproute2 python3"
  [debian]="debootstrap git"
  [soak]="xvfb dbus trayer python3-xlib python3-pil python3-dbus python3-dbusmock fonts-dejavu-core"
  [hosts]="xvfb dbus python3-xlib python3-pil python3-dbus python3-dbusmock libglib2.0-bin fonts-dejavu-core openbox trayer
    xfce4-panel xfce4-settings xfwm4 gnome-themes-extra mate-panel mate-settings-daemon mate-themes marco lxqt-panel
    lxqt-branding-debian sway waybar xwayland plasma-desktop kwin-x11 kwin-wayland xdg-desktop-portal-kde gnome-shell
    gnome-shell-extension-appindicator xdg-desktop-portal-gnome"
)

# For sharp windows under Wayland; the build does without. Older distributions have the first for another Qt.
layer_shell="liblayershellqtinterface-dev libwayland-dev qt6-wayland"

if ! command -v apt-get >/dev/null; then
  echo "setup: no apt-get here; install by hand: ${packages[*]}" >&2
  exit 0
fi

wanted=()
for group in "$@"; do
  # shellcheck disable=SC2206 # one word is one package
  wanted+=(${packages[$group]})
done

has_layer_shell() {
  local version
  version=$(apt-cache policy "${layer_shell%% *}" | sed -n 's/^ *Candidate: \([0-9]*:\)\?\([0-9]\)/\2/p')
  [ -n "$version" ] && dpkg --compare-versions "$version" ge 6
}

find_missing() {
  local package optional=()
  # shellcheck disable=SC2206
  [[ " $* " != *" build "* ]] || ! has_layer_shell || optional=($layer_shell)
  missing=()
  for package in "${wanted[@]}" "${optional[@]}"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
}

find_missing "$@"
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
"${as_root[@]}" apt-get update -qq
find_missing "$@" # a new system knows no optional ones before
echo "setup: installing ${missing[*]}"
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
