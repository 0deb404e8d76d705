#!/usr/bin/env bash
# Looks for faults with libFuzzer: every target, or those named, for FUZZ_SECONDS each. What is found lies in
# build/fuzz/found; copy it to fuzz/reproducers/TARGET, where `make test` keeps trying it, and mend the fault.
set -euo pipefail
cd "$(dirname "$0")/.."

[ $# -gt 0 ] || set -- fuzz/seeds/*
memory=/dev/shm
[ -w "$memory" ] || memory=/tmp
TMPDIR=$(mktemp -d "$memory/vantrix-fuzz-XXXXXX")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
printf 'leak:libfontconfig\n' >"$TMPDIR/known_leaks"
export LSAN_OPTIONS=suppressions=$TMPDIR/known_leaks:print_suppressions=0

for target in "${@##*/}"; do
  corpus=build/fuzz/corpus/$target
  found=build/fuzz/found/$target
  mkdir -p "$corpus" "$found"
  inputs=("$corpus" "fuzz/seeds/$target")
  [ ! -d "fuzz/reproducers/$target" ] || inputs+=("fuzz/reproducers/$target")
  echo "fuzz: $target"
  # What the program prints of damaged files would fill the screen; reports come nevertheless. Leaks are looked for at
  # the end, as a look after each input takes longer than the input.
  FUZZ_TARGET=$target build/fuzz/fuzz/fuzz -max_total_time="${FUZZ_SECONDS:-60}" -timeout=20 -rss_limit_mb=2048 \
    -detect_leaks=0 -close_fd_mask=2 -print_funcs=0 -print_final_stats=1 -artifact_prefix="$found/" \
    "${inputs[@]}" 2>&1 |
    grep -vE '^#[0-9]+\s+(NEW|REDUCE|pulse|RELOAD)|# Uses:|^QStandardPaths'
done
