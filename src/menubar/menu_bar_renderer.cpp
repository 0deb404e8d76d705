#include "menubar/menu_bar_renderer.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include <QGuiApplication>
#include <QPainter>

#include "menubar/history_graph.h"
#include "menubar/monospaced_font.h"

namespace vantrix {
namespace {

constexpr double inlineSpacing = 10.0;
constexpr double columnSpacing = 8.0;
constexpr double labelGap = 4.0;
constexpr double lineGap = 3.0;
constexpr double graphWidth = 24.0;
constexpr double graphHeight = 14.0;
constexpr double graphAdvance = 28.0;
constexpr double cornerRadius = 3.0;
constexpr std::size_t graphValues = 24;
constexpr double tileTextWidth = 21.5; // of the 22 points of a tile

constexpr double captionSize = 7.5;
constexpr double labelSize = 9.0;

/// Made when a row first needs it: finding and loading a font takes longer than drawing the row. Follows the desktop's
/// font, and stays as it is until that changes.
class RowFont {
  public:
    RowFont(double size, QFont::Weight weight) : size_(size), weight_(weight) {}

    const MonospacedFont& current() {
        if (const QFont font = QGuiApplication::font(); !made_ || made_->first != font)
            made_.emplace(font, MonospacedFont(size_, weight_));
        return made_->second;
    }

  private:
    double size_;
    QFont::Weight weight_;
    std::optional<std::pair<QFont, MonospacedFont>> made_;
};

namespace fonts {

const MonospacedFont& value() {
    static RowFont font(11.5, QFont::Medium);
    return font.current();
}

const MonospacedFont& twoLines() {
    static RowFont font(9.5, QFont::Medium);
    return font.current();
}

const MonospacedFont& caption() {
    static RowFont font(captionSize, QFont::Bold);
    return font.current();
}

const MonospacedFont& label() {
    static RowFont font(labelSize, QFont::DemiBold);
    return font.current();
}

} // namespace fonts

const std::string& lineOf(const MenuBarItem& item, std::size_t index) {
    static const std::string nothing;
    return index < item.lines.size() ? item.lines[index] : nothing;
}

/// What the value takes up or is reserved for it.
double inlineSlot(const MenuBarItem& item, const MonospacedFont& font) {
    const auto count = static_cast<double>(item.lines.size());
    const double reserved = count * font.width(item.reference) + (count - 1.0) * font.width(" ");
    return std::max(font.width(valueText(item)), reserved);
}

double stackedValueWidth(const MenuBarItem& item, const MonospacedFont& font) {
    double width = font.width(item.reference);
    for (const std::string& line : item.lines)
        width = std::max(width, font.width(line));
    return std::ceil(width);
}

double spacing(MenuBarStyle style) {
    return style == MenuBarStyle::inlined ? inlineSpacing : columnSpacing;
}

double rowWidth(const std::vector<MenuBarRenderer::Layout>& layouts, MenuBarStyle style) {
    double width = spacing(style) * (static_cast<double>(layouts.size()) - 1.0);
    for (const auto& layout : layouts)
        width += layout.total;
    return std::max(std::ceil(width), 1.0);
}

std::vector<MenuBarRenderer::Layout> layoutsOf(const std::vector<MenuBarItem>& items, MenuBarStyle style) {
    std::vector<MenuBarRenderer::Layout> layouts;
    layouts.reserve(items.size());
    for (const MenuBarItem& item : items)
        layouts.push_back(MenuBarRenderer::layout(item, style));
    return layouts;
}

QColor withAlpha(QColor color, double alpha) {
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

/// Draws the items of one row. Heights are counted upwards from the bottom edge, as type is set.
class RowPainter {
  public:
    RowPainter(QPainter& painter, bool colorize, const MenuBarPalette& palette)
        : painter_(painter), colorize_(colorize), palette_(palette), transform_(painter.deviceTransform()) {}

    void draw(const MenuBarItem& item, MenuBarStyle style, const MenuBarRenderer::Layout& layout, double x) {
        if (style == MenuBarStyle::inlined)
            return drawInline(item, layout, x);
        if (style == MenuBarStyle::graph)
            drawGraph(item, x);
        drawStacked(item, layout.columnWidth, style == MenuBarStyle::graph ? x + graphAdvance : x);
    }

    void drawInline(const MenuBarItem& item, const MenuBarRenderer::Layout& layout, double x) {
        const double base = (MenuBarRenderer::height - fonts::value().capHeight()) / 2.0;
        text(fonts::label(), x, base, item.label, captionColor());
        // From the right, each line at the right end of its own slot: what changes its width moves nothing else.
        const MonospacedFont& font = fonts::value();
        double right = x + layout.labelWidth + labelGap + inlineSlot(item, font);
        for (auto line = item.lines.rbegin(); line != item.lines.rend(); ++line) {
            const double width = font.width(*line);
            text(font, right - width, base, *line, valueColor(item));
            right -= std::max(width, font.width(item.reference)) + font.width(" ");
        }
    }

    void drawStacked(const MenuBarItem& item, double columnWidth, double x) {
        if (item.lines.size() >= 2)
            drawTwoLines(item, x);
        else
            drawCaptioned(item, columnWidth, x);
    }

    /// Two lines filling a square as wide as the row is high, each as large as fits.
    void drawTile(const MenuBarItem& item) {
        const bool captioned = item.lines.size() < 2;
        const FittedLine upper{captioned ? fonts::caption() : fonts::twoLines(), captioned ? item.label : item.lines[0],
                               captioned ? captionColor() : valueColor(item)};
        const FittedLine lower{captioned ? fonts::value() : fonts::twoLines(), lineOf(item, captioned ? 0 : 1),
                               valueColor(item), captioned ? fonts::value().width("88%") : 0.0};
        const double block = upper.height() + lineGap + lower.height();
        const double base = (MenuBarRenderer::height - block) / 2.0;
        drawFitted(lower, base);
        drawFitted(upper, base + lower.height() + lineGap);
    }

    void drawGraph(const MenuBarItem& item, double x) {
        const QRect rect = transform_.mapRect(QRectF(x, 4.0, graphWidth, graphHeight)).toRect();
        if (rect.isEmpty())
            return;
        const std::size_t count = std::min(item.history.size(), graphValues);
        const HistoryGraph graph{.pixels = rect.size(),
                                 .cornerRadius = cornerRadius * rect.height() / graphHeight,
                                 .background = withAlpha(palette_.label, 0.14),
                                 .fill = graphColor(item),
                                 .values = std::span(item.history).last(count),
                                 .fraction = item.fraction};
        // Whole device pixels: no scale can blur it.
        painter_.save();
        painter_.setTransform(transform_.inverted(), true);
        painter_.drawImage(rect.topLeft(), graph.image());
        painter_.restore();
    }

  private:
    struct FittedLine {
        const MonospacedFont& font;
        const std::string& text;
        QColor color;
        double usualWidth = 0.0; ///< a narrower text is set no larger than one of this width

        double scale() const { return std::min(tileTextWidth / std::max(font.width(text), usualWidth), 1.0); }
        double height() const { return font.capHeight() * scale(); }
    };

    void drawFitted(const FittedLine& line, double baseline) {
        painter_.save();
        painter_.translate(MenuBarRenderer::height / 2.0, snappedY(MenuBarRenderer::height - baseline));
        painter_.scale(line.scale(), line.scale());
        line.font.draw(painter_, QPointF(-line.font.width(line.text) / 2.0, 0.0), line.text, line.color);
        painter_.restore();
    }

    void drawCaptioned(const MenuBarItem& item, double columnWidth, double x) {
        const MonospacedFont& value = fonts::value();
        const MonospacedFont& caption = fonts::caption();
        const double base = (MenuBarRenderer::height - (value.capHeight() + lineGap + caption.capHeight())) / 2.0;
        const std::string& line = lineOf(item, 0);
        text(value, x + (columnWidth - value.width(line)) / 2.0, base, line, valueColor(item));
        text(caption, x + (columnWidth - caption.width(item.label)) / 2.0, value.capHeight() + base + lineGap,
             item.label, captionColor());
    }

    void drawTwoLines(const MenuBarItem& item, double x) {
        const MonospacedFont& font = fonts::twoLines();
        const double capHeight = font.capHeight();
        const double base = (MenuBarRenderer::height - (2.0 * capHeight + lineGap)) / 2.0;
        text(font, x, base, item.lines[1], valueColor(item));
        text(font, x, capHeight + base + lineGap, item.lines[0], valueColor(item));
    }

    void text(const MonospacedFont& font, double x, double baseline, const std::string& text, const QColor& color) {
        // A baseline between two device pixels would blur every horizontal stroke.
        font.draw(painter_, QPointF(x, snappedY(MenuBarRenderer::height - baseline)), text, color);
    }

    QColor severityColor(const MenuBarItem& item, const QColor& otherwise) const {
        if (!colorize_ || item.severity == MenuBarSeverity::normal)
            return otherwise;
        return item.severity == MenuBarSeverity::critical ? palette_.red : palette_.orange;
    }

    QColor valueColor(const MenuBarItem& item) const { return severityColor(item, palette_.label); }
    QColor graphColor(const MenuBarItem& item) const {
        return severityColor(item, withAlpha(palette_.label, palette_.barOpacity));
    }
    QColor captionColor() const { return withAlpha(palette_.label, palette_.captionOpacity); }

    double snappedY(double y) const {
        const double scale = transform_.m22();
        return scale > 0.0 ? (std::round(y * scale + transform_.dy()) - transform_.dy()) / scale : y;
    }

    QPainter& painter_;
    bool colorize_;
    const MenuBarPalette& palette_;
    QTransform transform_;
};

} // namespace

MenuBarPalette MenuBarPalette::onDark() {
    return {QColor(255, 255, 255, 235), QColor(255, 159, 10), QColor(255, 90, 80)};
}

MenuBarPalette MenuBarPalette::onLight() {
    // Deeper than the usual system colours, which are too faint for small type on a light ground.
    return {QColor(0, 0, 0, 217), QColor(194, 84, 0), QColor(208, 10, 24)};
}

MenuBarRenderer::Layout MenuBarRenderer::layout(const MenuBarItem& item, MenuBarStyle style) {
    Layout layout;
    if (style == MenuBarStyle::inlined) {
        layout.labelWidth = std::ceil(fonts::label().width(item.label));
        layout.columnWidth = std::ceil(inlineSlot(item, fonts::value()));
        layout.total = layout.labelWidth + labelGap + layout.columnWidth;
        return layout;
    }
    const bool captioned = item.lines.size() < 2;
    layout.columnWidth = stackedValueWidth(item, captioned ? fonts::value() : fonts::twoLines());
    if (captioned)
        layout.columnWidth = std::max(layout.columnWidth, std::ceil(fonts::caption().width(item.label)));
    layout.total = layout.columnWidth + (style == MenuBarStyle::graph ? graphAdvance : 0.0);
    return layout;
}

double MenuBarRenderer::inkHeight(MenuBarStyle style) {
    constexpr double rounding = 1.0;    // on each side: round letters are higher, and lines are moved to whole pixels
    if (style == MenuBarStyle::inlined) // whose captions may have a tail, like that of "Q"
        return fonts::value().capHeight() + 2.0 * (labelSize / 4.0 + rounding);
    return std::max(fonts::value().capHeight() + fonts::caption().capHeight(), 2.0 * fonts::twoLines().capHeight()) +
           lineGap + 2.0 * rounding;
}

double MenuBarRenderer::smallestType(MenuBarStyle style) {
    return style == MenuBarStyle::inlined ? labelSize : captionSize;
}

QSizeF MenuBarRenderer::size(const std::vector<MenuBarItem>& items, MenuBarStyle style) {
    return {rowWidth(layoutsOf(items, style), style), height};
}

std::size_t MenuBarRenderer::itemAt(const std::vector<MenuBarItem>& items, MenuBarStyle style, double x) {
    double end = -spacing(style) / 2.0;
    for (std::size_t i = 0; i + 1 < items.size(); ++i) {
        end += layout(items[i], style).total + spacing(style);
        if (x < end)
            return i;
    }
    return items.size() - 1;
}

std::vector<QRectF> MenuBarRenderer::boxes(const std::vector<MenuBarItem>& items, MenuBarStyle style) {
    std::vector<QRectF> boxes;
    boxes.reserve(items.size());
    double left = -spacing(style) / 2.0;
    for (const MenuBarItem& item : items) {
        boxes.emplace_back(left, 0.0, layout(item, style).total + spacing(style), height);
        left = boxes.back().right();
    }
    return boxes;
}

void MenuBarRenderer::paintItem(QPainter& painter, const MenuBarItem& item, const QRectF& box, MenuBarStyle style,
                                bool colorize, const MenuBarPalette& palette) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    RowPainter(painter, colorize, palette).draw(item, style, layout(item, style), box.left() + spacing(style) / 2.0);
    painter.restore();
}

void MenuBarRenderer::paint(QPainter& painter, const std::vector<MenuBarItem>& items, MenuBarStyle style, bool colorize,
                            const MenuBarPalette& palette, const QRectF& within) {
    const auto places = boxes(items, style);
    for (std::size_t i = 0; i < items.size(); ++i)
        if (within.isNull() || places[i].intersects(within))
            paintItem(painter, items[i], places[i], style, colorize, palette);
}

void MenuBarRenderer::render(QImage& image, const std::vector<MenuBarItem>& items, MenuBarStyle style, bool colorize,
                             const MenuBarPalette& palette, double scale) {
    const QSizeF points = size(items, style);
    const QSize pixels(static_cast<int>(std::ceil(points.width() * scale)),
                       static_cast<int>(std::ceil(points.height() * scale)));
    if (image.size() != pixels || image.format() != QImage::Format_ARGB32_Premultiplied)
        image = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(painter, items, style, colorize, palette);
}

QImage MenuBarRenderer::tile(const MenuBarItem& item, bool colorize, const MenuBarPalette& palette, int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(side / height, side / height);
    RowPainter(painter, colorize, palette).drawTile(item);
    return image;
}

bool looksSame(const MenuBarItem& a, const MenuBarItem& b, MenuBarStyle style) {
    if (style == MenuBarStyle::graph)
        return a == b;
    return a.label == b.label && a.lines == b.lines && a.severity == b.severity && a.reference == b.reference;
}

bool samePicture(const std::vector<MenuBarItem>& a, const std::vector<MenuBarItem>& b, MenuBarStyle style) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [style](const MenuBarItem& x, const MenuBarItem& y) { return looksSame(x, y, style); });
}

} // namespace vantrix
