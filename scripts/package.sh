#!/usr/bin/env bash
# Makes what others install, in build/packages: on a Mac the bundle of a finished build, packed; on Debian and its kin
# the package and its debug symbols, built from the tracked files and looked over. Usage: package.sh [MAC-BUILD]
set -euo pipefail
cd "$(dirname "$0")/.."
packages=$PWD/build/packages

pack_bundle() {
  local version package
  version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$1/CMakeCache.txt")
  package=$packages/vantrix-$version-macos-$(uname -m).zip
  # Keeps permissions and signature.
  ditto -c -k --keepParent "$1/Vantrix.app" "$package"
  echo "package: $package"
}

build_debian() {
  local tree=$PWD/build/package/vantrix log=$packages/build.log
  rm -rf "$packages" build/package
  mkdir -p "$packages" "$tree"
  git ls-files -z | tar --create --null --files-from=- | tar --extract --directory="$tree"
  # The package's build has a home of its own, and so would its compiler cache.
  command -v ccache >/dev/null && export CCACHE_DIR="${CCACHE_DIR:-$(ccache --get-config cache_dir)}"
  (cd "$tree" && dpkg-buildpackage --build=binary --no-sign >"$log" 2>&1) ||
    { tail -n 30 "$log" >&2; echo "package: could not be built, see $log" >&2; exit 1; }
  mv build/package/*.deb build/package/*.buildinfo build/package/*.changes "$packages"
  lintian --allow-root --fail-on error,warning "$packages"/*.changes
  blhc --all "$log"
  ls "$packages"/*.deb
}

mkdir -p "$packages"
if [ "$(uname -s)" = Darwin ]; then
  pack_bundle "$1"
else
  build_debian
fi
