#!/usr/bin/env bash
# clang-tidy over the sources; slow, as it parses the toolkit's headers for each. Given a revision, only over what has
# changed since. Usage: scripts/static_analysis.sh [REVISION]
set -euo pipefail
cd "$(dirname "$0")/.."

# The build makes what the compilation database speaks of, and has no warnings. Each file is compiled alone, without
# precompiled headers, which would be in the other compiler's form and hide a missing include.
cmake --preset dev -B build/tidy -DVANTRIX_UNITY=OFF -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
cmake --build build/tidy --target vantrix -j "$(nproc)" | tail -n 1

if [ $# -gt 0 ]; then
  files=$(git diff --name-only --diff-filter=d "$1" -- 'src/*.cpp')
else
  files=$(git ls-files 'src/*.cpp')
fi
files=$(grep -vE '^src/macos/(services|status_area|bluetooth)/' <<<"$files" || true)
# Only what this system compiles: optional libraries are not everywhere.
files=$(grep -xFf <(grep -oE '"file": "[^"]+"' build/tidy/compile_commands.json | sed "s|\"file\": \"$PWD/||; s|\"$||") \
  <<<"$files" || true)
[ -z "$files" ] || xargs -P "$(nproc)" -n 4 clang-tidy -p build/tidy --quiet 2>/dev/null <<<"$files"
echo "static analysis: clean"
