#include "platform/desktop_services.h"

#include <cstring>

#include <CoreGraphics/CoreGraphics.h>

#include "macos/kernel/cf_ref.h"

namespace vantrix {
namespace {

char cocoa[] = "cocoa";

} // namespace

std::shared_ptr<void> prepareDisplay(int argc, char** argv) {
    const CFRef<CFDictionaryRef> session(CGSessionCopyCurrentDictionary());
    if (!session)
        return nullptr;
    // The status item and the popover are the system's own: no other kind of display could show them.
    qputenv("QT_QPA_PLATFORM", cocoa);
    for (int i = 1; i + 1 < argc; ++i)
        if (!std::strcmp(argv[i], "-platform") || !std::strcmp(argv[i], "--platform"))
            argv[i + 1] = cocoa;
    // Started by hand, outside its bundle, the program is still none with a place in the dock.
    qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1");
    return std::make_shared<bool>(true);
}

void drawOffscreen() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

void prepareTerminal() {
    // The toolkit's other event loop knows descriptors and timers alone, not the system's main queue.
    qputenv("QT_EVENT_DISPATCHER_CORE_FOUNDATION", "1");
}

bool windowsAreBlended() {
    return true;
}

bool windowsCanFade() {
    return true;
}

std::optional<std::string> unreadableRoot(const KernelRoots& /*roots*/) {
    return std::nullopt; // its kernel shows itself in no folders
}

} // namespace vantrix
