#include "linux/status_area/status_row.h"

#include <QPainter>

#include "menubar/symbol.h"

namespace vantrix {

namespace {

constexpr std::string_view gaugeSymbol = "gauge.with.dots.needle.33percent";
constexpr double gaugeSide = 18.0; // the symbol within its square of 22 points

QString textOf(const MenuBarItem& item) {
    return QString::fromStdString(itemText(item));
}

} // namespace

QImage gaugeTile(const MenuBarPalette& palette, int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const double inner = side * gaugeSide / MenuBarRenderer::height;
    const double margin = (side - inner) / 2.0;
    paintSymbol(painter, gaugeSymbol, QRectF(margin, margin, inner, inner), palette.label);
    return image;
}

StatusRow::StatusRow(StatusContent content) : content_(std::move(content)) {
    if (!content_.accessibilityLabel.empty())
        text_ = QString::fromStdString(content_.accessibilityLabel);
}

QSize StatusRow::size() const {
    constexpr int height = static_cast<int>(MenuBarRenderer::height);
    if (content_.items.empty())
        return {height, height};
    return {static_cast<int>(MenuBarRenderer::size(content_.items, content_.style).width()), height};
}

double StatusRow::inkHeight() const {
    return content_.items.empty() ? gaugeSide : MenuBarRenderer::inkHeight(content_.style);
}

double StatusRow::smallestType() const {
    return content_.items.empty() ? gaugeSide : MenuBarRenderer::smallestType(content_.style);
}

StatusRow StatusRow::inlined() const {
    StatusRow row = *this;
    row.content_.style = MenuBarStyle::inlined;
    return row;
}

void StatusRow::paint(QPainter& painter, const MenuBarPalette& palette, const QRectF& within) const {
    if (!content_.items.empty()) {
        MenuBarRenderer::paint(painter, content_.items, content_.style, content_.colorize, palette, within);
        return;
    }
    constexpr double margin = (MenuBarRenderer::height - gaugeSide) / 2.0;
    paintSymbol(painter, gaugeSymbol, QRectF(margin, margin, gaugeSide, gaugeSide), palette.label);
}

std::vector<QRectF> StatusRow::changes(const StatusRow& other) const {
    const auto boxes = MenuBarRenderer::boxes(content_.items, content_.style);
    if (content_.items.empty() || content_.style != other.content_.style ||
        content_.colorize != other.content_.colorize ||
        boxes != MenuBarRenderer::boxes(other.content_.items, other.content_.style))
        return {QRectF(QPointF(), size())};
    std::vector<QRectF> changes;
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (!looksSame(content_.items[i], other.content_.items[i], content_.style))
            changes.push_back(boxes[i]);
    return changes;
}

std::vector<QRect> StatusRow::draw(RowPicture& picture, const MenuBarPalette& palette, QSize size,
                                   const QTransform& toPixel) const {
    const RowPicture::Look look{content_.style, content_.colorize, palette, size, toPixel};
    if (content_.items.empty())
        return picture.draw(look, [&](QPainter& painter) { paint(painter, palette); });
    return picture.draw(content_.items, look);
}

std::size_t StatusRow::tileCount() const {
    return std::max<std::size_t>(content_.items.size(), 1);
}

QImage StatusRow::tile(std::size_t index, const MenuBarPalette& palette, int side) const {
    if (content_.items.empty())
        return gaugeTile(palette, side);
    return MenuBarRenderer::tile(content_.items[index], content_.colorize, palette, side);
}

QString StatusRow::tileName(std::size_t index) const {
    if (content_.items.empty())
        return QStringLiteral("gauge");
    const std::string_view name = choiceOf(menuBarModules, content_.items[index].module).rawValue;
    return QString::fromUtf8(name);
}

QString StatusRow::tileText(std::size_t index) const {
    if (content_.items.empty())
        return text_;
    return textOf(content_.items[index]);
}

std::optional<MenuBarModule> StatusRow::tileModule(std::size_t index) const {
    return content_.items.empty() ? std::nullopt : std::optional(content_.items[index].module);
}

std::optional<MenuBarModule> StatusRow::moduleAt(double x) const {
    if (content_.items.empty())
        return std::nullopt;
    return tileModule(MenuBarRenderer::itemAt(content_.items, content_.style, x));
}

bool StatusRow::sameTile(const StatusRow& other, std::size_t index) const {
    if (content_.items.empty() || other.content_.items.empty())
        return content_.items.empty() == other.content_.items.empty();
    return index < content_.items.size() && index < other.content_.items.size() &&
           content_.colorize == other.content_.colorize &&
           samePicture({content_.items[index]}, {other.content_.items[index]}, MenuBarStyle::stacked);
}

QString StatusRow::label() const {
    QStringList parts;
    for (const auto& item : content_.items)
        parts << textOf(item);
    return parts.join(QStringLiteral("  "));
}

QString StatusRow::labelGuide() const {
    QStringList parts;
    for (MenuBarItem item : content_.items) {
        item.lines.assign(item.lines.size(), item.reference);
        parts << textOf(item);
    }
    return parts.join(QStringLiteral("  "));
}

bool StatusRow::looksLike(const StatusRow& other) const {
    return content_.style == other.content_.style && content_.colorize == other.content_.colorize &&
           text_ == other.text_ && samePicture(content_.items, other.content_.items, content_.style);
}

} // namespace vantrix
