#!/usr/bin/env bash
# What an installed program brings a Linux desktop: well-formed, in every language of the program, and of one version.
set -euo pipefail
cd "$(dirname "$0")/.."
files=resources/linux
id=app.vantrix.Vantrix
entry=$files/$id.desktop

fail() {
  echo "check-linux-files: $*" >&2
  exit 1
}

desktop-file-validate $entry
# The bus and the desktop know the program by one name, that of their files.
grep -qx "Name=$id" $files/$id.service || fail "the bus would start another program"
grep -qF "applicationId = \"$id\"" src/platform/application_service.h || fail "the program has another name"
grep -qF ">$id.desktop</launchable>" $files/$id.metainfo.xml || fail "the metainfo launches another entry"
appstreamcli validate --no-net $files/$id.metainfo.xml
mandoc -T lint $files/vantrix.1
for shell in bash zsh fish; do
  "$shell" -n $files/completions/vantrix.$shell
done

translation() { sed -n "s|.*<source>$1</source><translation>\(.*\)</translation>.*|\1|p" "$2"; }

for table in resources/translations/??.ts resources/translations/zh_*.ts; do
  language=$(basename "$table" .ts)
  [ "$language" != en ] || continue
  settings=$(translation 'Settings…' "$table")
  quit=$(translation 'Quit Vantrix' "$table")
  language=${language/zh_Hans/zh_CN}
  for line in "GenericName[$language]=" "Comment[$language]=" "Keywords[$language]=" "Name[$language]=$settings" \
    "Name[$language]=$quit"; do
    grep -qF "$line" $entry || fail "the menu entry lacks $line"
  done
  comment=$(grep -F "Comment[$language]=" $entry)
  grep -qF "<summary xml:lang=\"$language\">${comment#*=}</summary>" $files/*.metainfo.xml ||
    fail "the summary differs from $comment"
done

while read -r picture; do
  [ -s "$picture" ] || fail "there is no picture $picture"
done < <(sed -n 's|.*<image>https://[^/]*/\(.*\)</image>.*|\1|p' $files/*.metainfo.xml)

version=$(sed -n 's/^project(vantrix VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
head -n 1 debian/changelog | grep -qF "vantrix ($version)" || fail "debian/changelog is not of version $version"
grep -qF "<release version=\"$version\"" $files/*.metainfo.xml || fail "the metainfo knows no version $version"
