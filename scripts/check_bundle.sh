#!/usr/bin/env bash
# What a finished Vantrix.app has to be on a Mac, before others get it. Usage: check_bundle.sh Vantrix.app
set -euo pipefail
bundle=$1
program=$bundle/Contents/MacOS/Vantrix

codesign --verify --strict "$bundle"
plutil -lint "$bundle/Contents/Info.plist"
[ -s "$bundle/Contents/Resources/Vantrix.icns" ]
if otool -l "$program" | grep -A 2 LC_RPATH | grep -E 'Xcode|CommandLineTools|\.sdk|\.xctoolchain'; then
  echo "check-bundle: the program looks for libraries in these folders, which other machines lack" >&2
  exit 1
fi
"$program" --version
"$program" --print text --count 1
"$program" --doctor
