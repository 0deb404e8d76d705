#!/usr/bin/env bash
# Who may include whom. The build proves that the core links no Qt; this proves the rest of the layering.
set -euo pipefail
cd "$(dirname "$0")/.."
failed=0

complain() {
  echo "layering: $1"
  failed=1
}

rules="samplers|sensors|accessories|support"
interfaces="platform/diagnosis.h|platform/sampling_sources.h|platform/thread_priority.h|posix/file_descriptor.h"
middle="processor|memory|network|disks|graphics|sensors|processes" # side by side: none knows another

# folder : what the folder may include from the project's own folders
allowed="
support:support
samplers:samplers|support
sensors:sensors|support
accessories:accessories|support
monitor:monitor|$rules|platform/sampling_sources.h|platform/bluetooth.h|platform/thread_priority.h|menubar/preferences.h
menubar:menubar|monitor|support|samplers/memory_sampler.h|platform/system_symbols.h
views:views|menubar|support|platform/appearance.h|platform/status_item.h|platform/desktop_services.h
popover:popover|views|monitor|menubar|$rules|platform/status_item.h|platform/popover_window.h|platform/popup_input.h|platform/desktop_services.h
settings:settings|views|monitor|menubar|support|platform/login_item.h
alerts:alerts|monitor|menubar|support|samplers|accessories|platform/notification_center.h
widget:widget|monitor|menubar|support|samplers|accessories|platform/widget_center.h
doctor:doctor|$rules|monitor/samplers.h|platform/diagnosis.h|platform/sampling_sources.h
posix:posix|platform/desktop_services.h
linux/power_supply:linux/(power_supply|$middle|kernel)|$rules
linux/diagnosis:linux/(diagnosis|power_supply|$middle|kernel)|platform/diagnosis.h|$rules
linux/capture:linux/(capture|$middle|kernel)|platform/sampling_sources.h|$rules
"
for wing in linux macos; do
  allowed+="
$wing/kernel:$wing/kernel|$interfaces|$rules"
  for room in ${middle//|/ }; do
    [ ! -d "src/$wing/$room" ] || allowed+="
$wing/$room:$wing/($room|kernel)|$interfaces|$rules"
  done
done

for line in $allowed; do
  folder=${line%%:*}
  pattern=${line#*:}
  while IFS=: read -r file _ include; do
    [ -n "$file" ] && complain "$file may not include $include"
  done < <(grep -rnoE '#include "[^"]+"' "src/$folder" | sed -E 's/#include "([^"]+)"/\1/' | grep -vE ":($pattern)(/|$)" || true)
done

# What no room holds puts the rooms of the sources together.
while IFS= read -r place; do
  complain "$place: no part of the sources"
done < <(grep -HnE '#include "(views|popover|menubar|monitor|settings|app|[a-z]+/(status_area|bluetooth|settings|services))/' \
  src/{linux,macos}/*.{h,cpp} 2>/dev/null || true)

# A wing is entered through the interfaces; what both systems share knows neither.
while IFS= read -r place; do
  complain "$place enters a wing"
done < <(grep -rnE '#include "(linux|macos|posix)/' src | grep -vE '^src/(linux|macos|posix)/' || true)
while IFS= read -r place; do
  complain "$place enters the other wing"
done < <(grep -rnE '#include "macos/' src/linux; grep -rnE '#include "linux/' src/macos || true)

# No two files share a name, whatever the room.
while IFS= read -r name; do
  complain "more than one file is named $name"
done < <(git ls-files src | grep -E '\.(h|cpp|mm)$' | sed -E 's/\.[a-z]+$//' | sort -u | sed 's,.*/,,' | sort | uniq -d)

# The core and the kernel sources use no Qt.
for folder in support samplers sensors accessories {linux,macos}/{kernel,processor,memory,network,disks,graphics,sensors,processes,power_supply,diagnosis,capture} \
  {linux,macos}/*.{h,cpp}; do
  while IFS= read -r file; do
    complain "$file uses Qt"
  done < <(grep -rlE '#include <Q' src/$folder 2>/dev/null | grep -vE 'support/(user_defaults|size_text|json_object)' || true)
done

# The operating system is chosen by folder, never by the preprocessor.
while IFS= read -r file; do
  complain "$file asks for the operating system outside the wings"
done < <(grep -rlE '#\s*(if|ifdef|elif).*(__APPLE__|__linux__|Q_OS_)' src | grep -vE '^src/(linux|macos|posix)/' || true)

# What the standard library of the oldest Xcode (14.3) lacks, and no compiler here tells of. The tests are built there, too.
lacking='std::(ranges|views)::|\b(to_chars|jthread|stop_token|memory_resource|source_location|osyncstream|zoned_time)\b'
while IFS= read -r place; do
  complain "$place needs a newer Mac"
done < <(grep -rnE "$lacking|<(format|print|ranges)>" --include='*.h' --include='*.cpp' --include='*.mm' src tests resources |
  grep -vE '^(src|tests)/linux/|: *//' || true)

exit $failed
