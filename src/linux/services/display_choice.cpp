#include "linux/services/display_choice.h"

namespace vantrix {

DisplayKind chooseDisplay(const DisplayQuestions& session) {
    const bool wayland = session.waylandIsUsable();
    if (wayland && session.hasLayers() && !session.hasX11Tray() && session.expectsNotifierHost())
        return DisplayKind::wayland;
    if (session.x11Answers())
        return DisplayKind::x11;
    return wayland ? DisplayKind::wayland : DisplayKind::none;
}

} // namespace vantrix
