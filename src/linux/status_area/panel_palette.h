#pragma once

#include <optional>

#include <QColor>

#include "menubar/menu_bar_renderer.h"

namespace vantrix {

/// The row's colours on a panel of the colour `ground`: `text`, the panel's own for its texts, where small type can be
/// read in it, else black or white. Everything stands out from the ground, with a contrast of 3 at least.
MenuBarPalette paletteOn(const QColor& ground, const std::optional<QColor>& text);

/// The row's colours for a panel of which nothing is known but that its own text has the colour `text`: light text
/// means a dark panel.
MenuBarPalette paletteForText(const QColor& text);

/// The row's colours for a dark or a light panel.
MenuBarPalette paletteForPanel(bool dark);

} // namespace vantrix
