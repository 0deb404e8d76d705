#!/usr/bin/env bash
# Answers, on a Mac, those questions of docs/macos.md that a command can: one text to send, with no names and addresses
# in it. Takes three minutes, and asks for Bluetooth like any first start. Usage: mac_report.sh [Vantrix.app]
set -euo pipefail
cd "$(dirname "$0")/.."
bundle=${1:-build/macos/Vantrix.app}
program=$bundle/Contents/MacOS/Vantrix
passes=360 # of half a second each

[ "$(uname -s)" = Darwin ] || { echo "mac-report: this is for a Mac, and asks it what no other system can tell"; exit; }
[ -x "$program" ] || { echo "mac-report: build $bundle first, as the README says" >&2; exit 1; }

work=$(mktemp -d)
pid=
cleanUp() {
  [ -z "$pid" ] || kill "$pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanUp EXIT

part() {
  printf '\n## %s\n' "$1"
}

# One line of what a command says, whatever becomes of it.
fact() {
  local name=$1
  shift
  printf '%s: %s\n' "$name" "$("$@" 2>&1 | head -n 1)" || true
}

# The program as the system starts it, which then asks for Bluetooth in its own name.
start() {
  open -n -g --stdout "$work/lines" "$bundle" --args --print json --interval 0.5 --count $passes
  sleep 5
  pid=$(pgrep -n -f 'MacOS/Vantrix --print json') || true
}

memory() {
  printf 'resident after %s s: %s KiB\n' "$1" "$(ps -o rss= -p "$pid" | tr -d ' ')"
}

report() {
  echo "# Vantrix on a Mac"
  part "System"
  fact macOS sw_vers -productVersion
  fact processor sysctl -n machdep.cpu.brand_string
  fact compiler c++ --version
  fact Swift xcrun swiftc --version
  fact CMake cmake --version
  fact Xcode xcodebuild -version
  system_profiler SPDisplaysDataType | grep -E 'Resolution|UI Looks like|Main Display' || true

  part "Bundle"
  if codesign --verify --strict "$bundle"; then echo "signature: valid"; fi
  codesign --display --verbose=2 "$bundle" 2>&1 | grep -E '^Signature|^CodeDirectory|^Sealed' || true
  otool -l "$program" | grep -A 2 LC_RPATH | grep path || echo "no run paths"
  otool -L "$program" | sed 1d | grep -vE '/System/Library|/usr/lib/lib' || true

  part "Doctor, started from a terminal"
  "$program" --doctor || true

  part "As the system starts it"
  start
  if [ -z "$pid" ]; then
    echo "it did not start"
    return
  fi
  echo "number of the parent (1 is expected): $(ps -o ppid= -p "$pid" | tr -d ' ')"
  sleep 15
  memory 20
  sleep 130
  memory 150
  leaks "$pid" 2>&1 | grep -E 'leaks for|rror' || true
  # How many devices were found, not which.
  tail -n 1 "$work/lines" | sed -nE 's/.*\| ble: ([^:|"]*).*/Bluetooth: \1/p'
}

echo "mac-report: this takes three minutes"
report >"$work/report" 2>&1
mkdir -p build
sed -e "s,$PWD,.,g" -e "s,$HOME,~,g" "$work/report" | tee build/mac-report.txt
echo "mac-report: build/mac-report.txt is what to send; what it cannot tell is asked in docs/macos.md"
