#!/usr/bin/env bash
# Formatting, layering, warnings and static analysis; the same by hand and in continuous integration.
set -euo pipefail
cd "$(dirname "$0")/.."

echo "== formatting"
git ls-files '*.h' '*.cpp' | xargs clang-format --dry-run --Werror

echo "== layering"
scripts/check_layering.sh

echo "== warnings as errors"
cmake --preset dev >/dev/null
cmake --build --preset dev -j "$(nproc)" | tail -n 1

echo "== static analysis"
git ls-files 'src/*.cpp' | xargs -P "$(nproc)" -n 4 clang-tidy -p build/dev --quiet 2>/dev/null
echo "check: clean"
