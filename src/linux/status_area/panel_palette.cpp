#include "linux/status_area/panel_palette.h"

#include <algorithm>

#include "views/theme_colors.h"

namespace vantrix {

namespace {

constexpr double leastContrast = 3.0;
constexpr double leastTypeContrast = 4.5; // of small type; black or white always has more

bool isLight(const QColor& color) {
    return contrast(color, Qt::black) > contrast(color, Qt::white);
}

/// The least opacity from `opacity` on at which `color` stands out from `ground`.
double standingOut(double opacity, const QColor& color, const QColor& ground) {
    constexpr double step = 0.02;
    while (opacity < 1.0 && contrast(over(withAlpha(color, opacity), ground), ground) < leastContrast)
        opacity += step;
    return std::min(opacity, 1.0);
}

} // namespace

MenuBarPalette paletteOn(const QColor& ground, const std::optional<QColor>& text) {
    const bool fits = text && contrast(*text, ground) >= leastTypeContrast;
    MenuBarPalette palette = fits ? paletteForText(*text) : paletteForPanel(!isLight(ground));
    palette.orange = standingOut(palette.orange, ground, leastContrast);
    palette.red = standingOut(palette.red, ground, leastContrast);
    palette.captionOpacity = standingOut(palette.captionOpacity, palette.label, ground);
    palette.barOpacity = standingOut(palette.barOpacity, palette.label, ground);
    return palette;
}

MenuBarPalette paletteForText(const QColor& text) {
    MenuBarPalette palette = paletteForPanel(isLight(text));
    palette.label = text;
    return palette;
}

MenuBarPalette paletteForPanel(bool dark) {
    return dark ? MenuBarPalette::onDark() : MenuBarPalette::onLight();
}

} // namespace vantrix
