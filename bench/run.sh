#!/usr/bin/env bash
# Every measurement in one run, so that they can be compared. Usage: bench/run.sh BUILD-FOLDER
set -euo pipefail
build=$1
seconds=${IDLE_SECONDS:-60}

echo "== one sampling pass, its floor and its peers"
"$build/bench/sampling_bench" --benchmark_counters_tabular=true

echo
echo "== drawing the row at scale 2"
"$build/bench/render_bench"

echo
echo "== the popover at scale 2"
"$build/bench/popover_bench" 2>/dev/null

for host in waybar plasmashell; do
  echo
  echo "== the program idling for $seconds s under X11, host: $host (played)"
  # A settings folder of its own: the registered defaults are what is measured. Another one for what the session keeps:
  # the program watches its settings, and nobody's folder for them has files that change with every pass.
  settings=$(mktemp -d)
  mkdir -m 700 "$settings/runtime"
  XDG_CONFIG_HOME=$settings XDG_RUNTIME_DIR=$settings/runtime \
    xvfb-run -a dbus-run-session -- "$build/bench/idle_bench" "$build/vantrix" "$seconds" "$host"
  rm -rf "$settings"
done
