#!/usr/bin/env bash
# Takes away what the last `cmake --install` of a build put in place, and the folders that this leaves empty.
# Usage: uninstall.sh BUILD
set -euo pipefail
manifest=$1/install_manifest.txt
[ -e "$manifest" ] || { echo "uninstall: nothing was installed from $1" >&2; exit 1; }
mapfile -t files <"$manifest"
rm -f -- "${files[@]}"
for file in "${files[@]}"; do
  # An earlier round may have taken the folder already.
  rmdir --parents --ignore-fail-on-non-empty -- "$(dirname "$file")" 2>/dev/null || true
done
rm "$manifest"
