#include "linux/layer_shell/layer_shell.h"

namespace vantrix {

bool compositorHasLayers() {
    return false;
}

bool notifierWatcherAppears(std::chrono::milliseconds) {
    return false;
}

bool placeInLayer(QWidget&, const QRect&) {
    return false;
}

std::unique_ptr<PopoverWindow> makeLayerPopover(const Theme&, const PopoverWindow::MakeView&) {
    return nullptr;
}

} // namespace vantrix
