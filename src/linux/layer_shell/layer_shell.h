#pragma once

#include <chrono>
#include <memory>

#include <QRect>

#include "platform/popover_window.h"

namespace vantrix {

// Windows that a Wayland compositor places beside its panels (zwlr_layer_shell_v1). A build without the library for
// them has none: every answer is no.

/// True when the compositor at WAYLAND_DISPLAY has them. Takes a round trip to it, or half a second where it does not
/// answer.
bool compositorHasLayers();

/// True as soon as the session bus has a watcher for StatusNotifier items, for which it waits up to `patience`: a
/// desktop that is starting brings it up with its panel. To be asked before the application object exists.
bool notifierWatcherAppears(std::chrono::milliseconds patience);

/// Puts a small window of the program's at `place`, which may be beside a panel that is in the way, above all others.
/// False where the program does not draw on a compositor that has layers. Such a window knows nothing of its position.
bool placeInLayer(QWidget& window, const QRect& place);

/// The popover in such a window; null where the program does not draw on a compositor that has them.
std::unique_ptr<PopoverWindow> makeLayerPopover(const Theme& theme, const PopoverWindow::MakeView& makeView);

} // namespace vantrix
