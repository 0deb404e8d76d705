#!/usr/bin/env bash
# Tells how many lines of tests there are for 100 lines of code, and fails above the limit: beyond it tests restate the
# code, and every change is made twice. Blank lines and fixtures do not count.
set -efuo pipefail # git matches the names, not the shell
cd "$(dirname "$0")/.."
limit=45

lines() {
  git ls-files -z "$@" | xargs -0 cat | grep -c '[^[:space:]]'
}

code=$(lines {src,bench}/*.{h,cpp,mm,swift})
tests=$(lines tests/*.{h,cpp,mm,py,sh} fuzz/*.{h,cpp} ':!tests/fixtures')
share=$((100 * tests / code))
echo "tests: $tests lines beside $code of code, $share % (at most $limit)"
[ $((100 * tests)) -le $((limit * code)) ]
