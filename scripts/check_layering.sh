#!/usr/bin/env bash
# Who may include whom. The build proves that the core links no Qt; this proves the rest of the layering.
set -euo pipefail
cd "$(dirname "$0")/.."
failed=0

complain() {
  echo "layering: $1"
  failed=1
}

# folder : what the folder may include from the project's own folders
allowed="
support:support
samplers:samplers|support
sensors:sensors|support
accessories:accessories|support
monitor:monitor|samplers|sensors|accessories|support|platform/sampling_sources.h|platform/bluetooth.h|platform/thread_priority.h|menubar/preferences.h
menubar:menubar|monitor|support|samplers/memory_sampler.h|platform/system_symbols.h
views:views|menubar|support|platform/appearance.h|platform/status_item.h|platform/desktop_services.h
popover:popover|views|monitor|menubar|support|samplers|sensors|accessories|platform/status_item.h|platform/popover_window.h|platform/desktop_services.h
settings:settings|views|monitor|menubar|support|platform/login_item.h
alerts:alerts|monitor|menubar|support|samplers|accessories|platform/notification_center.h
widget:widget|monitor|menubar|support|samplers|accessories|platform/widget_center.h
doctor:doctor|support|samplers|sensors|accessories|platform/diagnosis.h|platform/sampling_sources.h
platform/linux/sources:platform/linux/sources|platform/posix/file_descriptor.h|platform/thread_priority.h|platform/sampling_sources.h|platform/diagnosis.h|samplers|sensors|accessories|support
platform/macos/sources:platform/macos/sources|platform/posix/file_descriptor.h|platform/thread_priority.h|platform/sampling_sources.h|platform/diagnosis.h|samplers|sensors|accessories|support
platform/posix:platform/posix|platform/desktop_services.h
"
for line in $allowed; do
  folder=${line%%:*}
  pattern=${line#*:}
  while IFS=: read -r file _ include; do
    [ -n "$file" ] && complain "$file may not include $include"
  done < <(grep -rnoE '#include "[^"]+"' "src/$folder" | sed -E 's/#include "([^"]+)"/\1/' | grep -vE ":($pattern)(/|$)" || true)
done

# The core and the kernel sources use no Qt.
for folder in support samplers sensors accessories platform/linux/sources platform/macos/sources; do
  while IFS= read -r file; do
    complain "$file uses Qt"
  done < <(grep -rlE '#include <Q' "src/$folder" | grep -vE 'support/(user_defaults|size_text)' || true)
done

# The operating system is chosen by folder, never by the preprocessor.
while IFS= read -r file; do
  complain "$file asks for the operating system outside src/platform"
done < <(grep -rlE '#\s*(if|ifdef|elif).*(__APPLE__|__linux__|Q_OS_)' src | grep -v '^src/platform/' || true)

# What the standard library of the oldest Mac lacks, and no compiler here tells of.
while IFS= read -r place; do
  complain "$place needs a newer Mac"
done < <(grep -rnE '\b(to_chars|jthread|stop_token|memory_resource|osyncstream|zoned_time)\b|<(format|print)>' src |
  grep -v '^src/platform/linux/\|: *//' || true)

exit $failed
