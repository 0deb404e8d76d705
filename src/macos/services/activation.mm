#include "platform/desktop_services.h"

#import <AppKit/AppKit.h>

namespace vantrix {

void activateProgram() {
    // The toolkit activates only windows, which brings nothing to the front in a program without a Dock icon.
    [NSApp activateIgnoringOtherApps:YES];
}

} // namespace vantrix
