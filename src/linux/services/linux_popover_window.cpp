#include "platform/popover_window.h"

#include "linux/layer_shell/layer_shell.h"
#include "popover/popover_host.h"

namespace vantrix {

std::unique_ptr<PopoverWindow> makePopoverWindow(const Theme& theme, PopoverWindow::MakeView makeView) {
    if (auto popover = makeLayerPopover(theme, makeView))
        return popover;
    return std::make_unique<PopoverHost>(theme, std::move(makeView));
}

} // namespace vantrix
