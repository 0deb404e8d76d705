#!/usr/bin/env bash
# Type-checks the desktop services of a Mac, for a Mac, against the project's own declarations of the system's
# interfaces (tests/macos). The C and C++ libraries and Qt are this machine's: a Mac's differ little in what is used of
# them. The processor is this machine's, too: its C library's headers know no other, and nothing here depends on it. The
# sources beside them need no such check; the tests compile and run them.
# Arguments: the files to check; without any, all.
set -euo pipefail
cd "$(dirname "$0")/.."

machine=$(g++ -dumpmachine)
version=$(g++ -dumpversion | cut -d. -f1)
flags=(
  -target "${machine%%-*}-apple-macos13.0" -fsyntax-only -std=c++20 -Wall -Wextra -Wconversion -Werror
  -Wnullable-to-nonnull-conversion -Wno-sign-conversion -Wno-missing-field-initializers
  # Apple's word for a nullable type is the C library's name for an attribute.
  -U__nonnull -D_GNU_SOURCE
  -Isrc -isystem tests/macos/objc -isystem tests/macos/include/frameworks
  -nostdinc++ -nostdlibinc
  -isystem "/usr/include/c++/$version" -isystem "/usr/include/$machine/c++/$version"
  -isystem "/usr/include/$machine" -isystem /usr/include
  -DQT_NO_KEYWORDS -DQT_NO_CAST_FROM_ASCII -DQT_NO_FOREACH -fPIC
)
for flag in $(pkg-config --cflags Qt6Widgets); do
  flags+=("${flag/#-I/-isystem}")
done

check() {
  case $1 in
  *.mm) clang++ "${flags[@]}" -x objective-c++ -fobjc-arc -fblocks "$1" ;;
  *) clang++ "${flags[@]}" "$1" ;;
  esac
}

if [ $# -eq 0 ]; then
  { find src/macos -name '*.mm'; find src/macos/services src/posix -name '*.cpp'; } | xargs -P "$(nproc)" -n 4 scripts/check_macos_types.sh
  exit
fi

failed=0
for file in "$@"; do
  check "$file" || failed=1
done
exit $failed
