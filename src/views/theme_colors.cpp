#include "views/theme_colors.h"

#include <algorithm>
#include <cmath>

namespace vantrix {
namespace {

constexpr double leastTextContrast = 4.5;
constexpr double leastShapeContrast = 1.9; // a desktop may choose pale yellow as its accent
constexpr double leastEdgeContrast = 3.0;  // where the desktop asks for high contrast
constexpr double leastMarkContrast = 2.5;
constexpr float step = 0.04f;

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor shade(bool dark, float alpha) {
    return withAlpha(dark ? Qt::white : Qt::black, alpha);
}

ThemeColors darkColors() {
    return {
        .window = QColor(30, 30, 33),
        .card = shade(true, 0.06f),
        .separator = shade(true, 0.11f),
        .outline = Qt::transparent,
        .control = shade(true, 0.12f),
        .label = shade(true, 0.93f),
        .secondary = shade(true, 0.68f),
        .tertiary = shade(true, 0.56f),
        .disabled = shade(true, 0.34f),
        .quaternary = shade(true, 0.13f),
        .accent = QColor(64, 148, 255),
        .orange = QColor(255, 159, 46),
        .red = QColor(255, 84, 74),
        .green = QColor(58, 206, 110),
        .purple = QColor(178, 120, 255),
    };
}

ThemeColors lightColors() {
    return {
        .window = QColor(252, 252, 253),
        .card = shade(false, 0.06f),
        .separator = shade(false, 0.11f),
        .outline = Qt::transparent,
        .control = QColor(255, 255, 255),
        .label = shade(false, 0.87f),
        .secondary = shade(false, 0.66f),
        .tertiary = shade(false, 0.60f),
        .disabled = shade(false, 0.36f),
        .quaternary = shade(false, 0.12f),
        .accent = QColor(10, 112, 235),
        .orange = QColor(240, 134, 0),
        .red = QColor(226, 48, 40),
        .green = QColor(30, 160, 68),
        .purple = QColor(142, 78, 226),
    };
}

ThemeColors highContrastColors(bool dark) {
    ThemeColors colors = dark ? darkColors() : lightColors();
    colors.window = dark ? Qt::black : Qt::white;
    colors.separator = shade(dark, 0.5f);
    colors.outline = shade(dark, 0.7f);
    colors.label = shade(dark, 1.0f);
    colors.secondary = shade(dark, 0.85f);
    colors.tertiary = shade(dark, 0.8f);
    colors.disabled = shade(dark, 0.5f);
    colors.quaternary = shade(dark, 0.25f);
    const QColor card = over(colors.card, colors.window);
    for (const auto role : {&ThemeColors::orange, &ThemeColors::red, &ThemeColors::green, &ThemeColors::purple})
        colors.*role = standingOut(colors.*role, card, leastEdgeContrast);
    return colors;
}

} // namespace

QColor withAlpha(QColor color, double alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

QColor over(const QColor& color, const QColor& ground) {
    const float alpha = color.alphaF();
    const auto channel = [alpha](float top, float under) { return top * alpha + under * (1.0f - alpha); };
    return QColor::fromRgbF(channel(color.redF(), ground.redF()), channel(color.greenF(), ground.greenF()),
                            channel(color.blueF(), ground.blueF()));
}

double contrast(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor standingOut(const QColor& color, const QColor& ground, double least) {
    const bool lighten = luminance(ground) < 0.18; // at 0.18 black and white stand out alike
    QColor result = color;
    for (float share = step; contrast(result, ground) < least && share < 1.0f; share += step)
        result = over(shade(lighten, share), color);
    return result;
}

ThemeColors ThemeColors::of(bool dark, const std::optional<QColor>& accent, bool highContrast) {
    ThemeColors colors = highContrast ? highContrastColors(dark) : dark ? darkColors() : lightColors();
    if (accent || highContrast)
        colors.accent = standingOut(accent.value_or(colors.accent), over(colors.card, colors.window),
                                    highContrast ? leastTextContrast : leastShapeContrast);
    return colors;
}

QColor ThemeColors::readable(const QColor& color) const {
    return readable(color, over(card, window));
}

QColor ThemeColors::readable(const QColor& color, const QColor& ground) {
    return standingOut(color, ground, leastTextContrast);
}

QColor ThemeColors::textOn(const QColor& fill) {
    return contrast(Qt::white, fill) >= leastTextContrast ? Qt::white : Qt::black;
}

QColor ThemeColors::markOn(const QColor& fill) {
    return contrast(Qt::white, fill) >= leastMarkContrast ? Qt::white : Qt::black;
}

} // namespace vantrix
