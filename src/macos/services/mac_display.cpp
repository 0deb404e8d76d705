#include "platform/desktop_services.h"

#include <cstring>

#include <CoreGraphics/CoreGraphics.h>

#include "macos/kernel/cf_ref.h"
#include "platform/popup_input.h"

namespace vantrix {
namespace {

char cocoa[] = "cocoa";

} // namespace

std::shared_ptr<void> prepareDisplay(int argc, char** argv) {
    const CFRef<CFDictionaryRef> session(CGSessionCopyCurrentDictionary());
    if (!session)
        return nullptr;
    // The status item and the popover are native: no other platform plugin could show them.
    qputenv("QT_QPA_PLATFORM", cocoa);
    for (int i = 1; i + 1 < argc; ++i)
        if (!std::strcmp(argv[i], "-platform") || !std::strcmp(argv[i], "--platform"))
            argv[i + 1] = cocoa;
    // No Dock icon either when the program is started by hand, outside its bundle.
    qputenv("QT_MAC_DISABLE_FOREGROUND_APPLICATION_TRANSFORM", "1");
    return std::make_shared<bool>(true);
}

void drawOffscreen() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

void prepareTerminal() {
    // The toolkit's other event loop does not serve the main dispatch queue.
    qputenv("QT_EVENT_DISPATCHER_CORE_FOUNDATION", "1");
}

void releaseIdleMemory() {} // the system compresses it

bool windowsAreBlended() {
    return true;
}

bool mouseIsPressed() {
    return false; // nobody asks: the system's popover knows its own clicks
}

std::shared_ptr<void> takeInput(bool /*takesMouse*/, std::function<void()> /*lost*/) {
    return nullptr;
}

bool windowsCanFade() {
    return true;
}

} // namespace vantrix
