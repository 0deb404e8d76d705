#include "views/theme.h"

#include <algorithm>
#include <cmath>

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>

namespace vantrix {
namespace {

constexpr double usualTextHeight = 40.0 / 3.0; // 10 typographic points, in pixels at scale 1
constexpr double mostTextScale = 3.0;
// Desktops use anything from 9 to 12 points by default; only more than that means that somebody wants larger text.
constexpr double leastEnlargement = 1.25;

/// As the toolkit reckons it, without the font being looked for.
double textHeight(const QFont& font) {
    constexpr double unknownScreen = 100.0; // dots per inch
    constexpr double pointsPerInch = 72.0;
    if (font.pixelSize() > 0)
        return font.pixelSize();
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dots = screen != nullptr ? std::round(screen->logicalDotsPerInchY()) : unknownScreen;
    return std::round(font.pointSizeF() * dots / pointsPerInch);
}

double desktopTextScale() {
    const double scale = textHeight(QGuiApplication::font()) / usualTextHeight;
    return scale < leastEnlargement ? 1.0 : std::min(scale, mostTextScale);
}

ThemeColors colorsOf(const Appearance& appearance) {
    ThemeColors colors = ThemeColors::of(appearance.dark, appearance.accent, appearance.highContrast);
    if (!appearance.colors)
        return colors;
    colors.orange = appearance.colors->orange;
    colors.red = appearance.colors->red;
    colors.green = appearance.colors->green;
    colors.purple = appearance.colors->purple;
    return colors;
}

} // namespace

Theme::Theme(const AppearanceSource& source) : source_(source) {
    refresh();
    connect(&source, &AppearanceSource::changed, this, &Theme::refresh);
    qGuiApp->installEventFilter(this);
}

QPalette Theme::palette() const {
    const QColor ground = over(colors_.card, colors_.window);
    QPalette palette(ground, ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, over(colors_.label, ground));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, over(colors_.disabled, ground));
    palette.setColor(QPalette::Base, ground);
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::Highlight, colors_.accent);
    palette.setColor(QPalette::HighlightedText, ThemeColors::textOn(colors_.accent));
    return palette;
}

const TextMeasure& Theme::measure(double points, QFont::Weight weight) const {
    auto& measure = measures_[{points, weight}];
    if (!measure) {
        QFont font(family_);
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(scaled(points)))));
        font.setWeight(weight);
        measure = std::make_unique<TextMeasure>(font);
    }
    return *measure;
}

const MonospacedFont& Theme::digits(double points, QFont::Weight weight) const {
    auto& font = digits_[{points, weight}];
    if (!font)
        font = std::make_unique<MonospacedFont>(QFont(family_), std::round(scaled(points)), weight);
    return *font;
}

bool Theme::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationFontChange)
        refresh();
    return false;
}

void Theme::refresh() {
    const Appearance appearance = source_.appearance();
    const QString family = QGuiApplication::font().family();
    const double textScale = desktopTextScale();
    if (family == family_ && textScale == textScale_ && appearance == appearance_)
        return;
    appearance_ = appearance;
    colors_ = colorsOf(appearance);
    family_ = family;
    textScale_ = textScale;
    measures_.clear();
    digits_.clear();
    Q_EMIT changed();
}

} // namespace vantrix
