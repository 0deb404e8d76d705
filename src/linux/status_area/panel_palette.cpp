#include "linux/status_area/panel_palette.h"

namespace vantrix {

double perceivedLightness(const QColor& color) {
    return 0.299 * color.redF() + 0.587 * color.greenF() + 0.114 * color.blueF();
}

MenuBarPalette paletteForText(const QColor& text) {
    MenuBarPalette palette = paletteForPanel(perceivedLightness(text) > 0.5);
    palette.label = text;
    return palette;
}

MenuBarPalette paletteForPanel(bool dark) {
    return dark ? MenuBarPalette::onDark() : MenuBarPalette::onLight();
}

} // namespace vantrix
