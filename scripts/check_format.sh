#!/usr/bin/env bash
# Every file as `make format` would leave it.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files '*.h' '*.cpp' '*.mm' | xargs clang-format --dry-run --Werror
