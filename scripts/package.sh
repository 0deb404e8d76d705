#!/usr/bin/env bash
# Packs what a build made into build/packages: the bundle on a Mac, elsewhere what cmake --install puts in place, as it
# lies under a prefix. Usage: package.sh BUILD
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1
packages=$PWD/build/packages
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
mkdir -p "$packages"

if [ "$(uname -s)" = Darwin ]; then
  package=$packages/vantrix-$version-macos-$(uname -m).zip
  # Keeps permissions and signature.
  ditto -c -k --keepParent "$build/Vantrix.app" "$package"
else
  # shellcheck source=/dev/null
  . /etc/os-release
  name=vantrix-$version-$ID-${VERSION_ID:-rolling}-$(uname -m)
  package=$packages/$name.tar.gz
  stage=$(mktemp -d)
  trap 'rm -rf "$stage"' EXIT
  cmake --install "$build" --prefix "$stage/$name" >/dev/null
  install -D -m 644 LICENSE "$stage/$name/share/doc/vantrix/LICENSE"
  tar --create --gzip --owner=0 --group=0 --directory="$stage" --file="$package" "$name"
fi
echo "package: $package"
