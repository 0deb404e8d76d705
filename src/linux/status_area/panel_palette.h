#pragma once

#include <QColor>

#include "menubar/menu_bar_renderer.h"

namespace vantrix {

/// How light a colour looks, 0 to 1.
double perceivedLightness(const QColor& color);

/// The row's colours for a panel whose own text has the colour `text`: light text means a dark panel.
MenuBarPalette paletteForText(const QColor& text);

/// The row's colours for a dark or a light panel.
MenuBarPalette paletteForPanel(bool dark);

} // namespace vantrix
