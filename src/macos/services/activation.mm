#include "platform/desktop_services.h"

#import <AppKit/AppKit.h>

namespace vantrix {

void activateProgram() {
    // The toolkit activates windows alone, which brings nothing to the front in a program without a place in the dock.
    [NSApp activateIgnoringOtherApps:YES];
}

} // namespace vantrix
