#include "platform/popover_window.h"

#include "popover/popover_host.h"

namespace vantrix {

std::unique_ptr<PopoverWindow> makePopoverWindow(const Theme& theme, PopoverWindow::MakeView makeView) {
    return std::make_unique<PopoverHost>(theme, std::move(makeView));
}

} // namespace vantrix
