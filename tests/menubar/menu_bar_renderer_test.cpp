#include "menubar/menu_bar_renderer.h"

#include <cmath>

#include <QFontDatabase>
#include <QPainter>

#include <gmock/gmock.h>

#include "menubar/monospaced_font.h"
#include "views/drawn.h"

namespace vantrix {
namespace {

const MenuBarPalette palette{QColor(255, 255, 255), QColor(255, 160, 0), QColor(255, 0, 0)};
constexpr MenuBarStyle styles[] = {MenuBarStyle::inlined, MenuBarStyle::stacked, MenuBarStyle::graph};

MenuBarItem percentItem(const char* label, const char* text) {
    return {label, {text}, MenuBarSeverity::normal, {}, 0.5, "100%"};
}

MenuBarItem networkItem() {
    return {"NET", {"↓1.5M", "↑0K"}, MenuBarSeverity::normal, {}, 0.0, "↓99M"};
}

QImage rendered(const std::vector<MenuBarItem>& items, MenuBarStyle style, bool colorize = true, double scale = 1.0) {
    QImage image;
    MenuBarRenderer::render(image, items, style, colorize, palette, scale);
    return image;
}

/// Pixels of nearly full strength whose hue is that of `color`.
int pixelsLike(const QImage& image, const QColor& color) {
    const auto near = [](int a, int b) { return std::abs(a - b) < 24; };
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += pixel.alpha() > 100 && near(pixel.red(), color.red()) && near(pixel.green(), color.green()) &&
                     near(pixel.blue(), color.blue());
        }
    return count;
}

TEST(MonospacedFont, GivesEveryDigitTheSameAdvanceInEveryInstalledFont) {
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isScalable(family))
            continue;
        const MonospacedFont font(QFont(family), 11.5, QFont::Medium);
        for (const char* digit : {"1", "2", "3", "4", "5", "6", "7", "8", "9"})
            EXPECT_DOUBLE_EQ(font.width(digit), font.width("0")) << family.toStdString() << ' ' << digit;
        EXPECT_DOUBLE_EQ(font.width("11%"), font.width("88%")) << family.toStdString();
    }
}

TEST(MenuBarRenderer, WidthsStayWhileNumbersChangeAndGrowOnlyForWhatIsWider) {
    for (const MenuBarStyle style : styles) {
        const auto width = [style](const std::vector<MenuBarItem>& items) {
            return MenuBarRenderer::size(items, style).width();
        };
        const MenuBarItem cpu = percentItem("CPU", "1%");
        EXPECT_EQ(width({cpu}), width({percentItem("CPU", "100%")}));
        EXPECT_GT(width({cpu, cpu}), 2 * width({cpu})) << "no gap between two";
        MenuBarItem wide = networkItem();
        wide.lines = {"↓1000K", "↑1000K"};
        EXPECT_GT(width({wide}), width({networkItem()}));
    }
    EXPECT_EQ(MenuBarRenderer::size({}, MenuBarStyle::stacked).width(), 1.0);
}

TEST(MenuBarRenderer, NothingIsDrawnBeyondTheRowsSize) {
    MenuBarItem wide = networkItem();
    wide.lines = {"↓1000K", "↑1000K"};
    const std::vector<MenuBarItem> rows[] = {{percentItem("CPU", "100%"), wide},
                                             {percentItem("A VERY WIDE CAPTION", "1%")},
                                             {percentItem("T", "a value far wider than its reference")}};
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        for (const MenuBarStyle style : styles)
            for (const std::vector<MenuBarItem>& row : rows) {
                const QSizeF size = MenuBarRenderer::size(row, style);
                const QSize pixels(static_cast<int>(std::ceil(size.width() * scale)),
                                   static_cast<int>(std::ceil(size.height() * scale)));
                EXPECT_EQ(rendered(row, style, true, scale).size(), pixels);

                const QPoint corner(60, 60);
                QImage page(pixels + QSize(120, 120), QImage::Format_ARGB32_Premultiplied);
                page.fill(Qt::transparent);
                QPainter painter(&page);
                painter.translate(corner);
                painter.scale(scale, scale);
                MenuBarRenderer::paint(painter, row, style, true, palette);
                painter.end();
                EXPECT_TRUE(QRect(corner, pixels).contains(inkOf(page, Qt::transparent)))
                    << row.front().label << ", scale " << scale << ", style " << static_cast<int>(style);
            }
}

TEST(MenuBarRenderer, ColoursTheValueBySeverityOnlyWhenAsked) {
    const struct {
        MenuBarSeverity severity;
        bool colorize;
        QColor color;
        bool expected;
    } cases[] = {{MenuBarSeverity::critical, true, palette.red, true},
                 {MenuBarSeverity::critical, false, palette.red, false},
                 {MenuBarSeverity::warning, true, palette.orange, true},
                 {MenuBarSeverity::normal, true, palette.orange, false}};
    for (const auto& c : cases)
        for (const MenuBarStyle style : styles) {
            MenuBarItem item = percentItem("CPU", "88%");
            item.severity = c.severity;
            EXPECT_EQ(pixelsLike(rendered({item}, style, c.colorize, 3.0), c.color) > 20, c.expected)
                << static_cast<int>(c.severity) << ' ' << c.colorize << ' ' << static_cast<int>(style);
        }
}

/// How strong the graph's fill is at a point of its 24 × 14 rectangle, `up` counted from its bottom edge.
bool filled(const QImage& image, double x, double up) {
    const int column = static_cast<int>(x * image.devicePixelRatio());
    const int row = static_cast<int>((18.0 - up) * image.devicePixelRatio());
    return qAlpha(image.pixel(column, row)) > 128;
}

TEST(MenuBarRenderer, TheGraphShowsTheNewestValuesOrABarOfTheFraction) {
    std::vector<double> aged(16, 1.0); // too old to be drawn
    aged.insert(aged.end(), 24, 0.5);
    const struct {
        const char* name;
        std::vector<double> history;
        std::vector<QPointF> filled, clear;
    } cases[] = {
        {"the newest 24", aged, {{4, 6.5}, {12, 6.5}, {20, 6.5}}, {{4, 7.5}, {12, 7.5}, {20, 7.5}}},
        {"rising, clamped at 1", {0.0, 2.0}, {{20, 5}}, {{4, 5}}},
        {"none", {}, {{12, 6.5}}, {{12, 7.5}}},
        {"too few for a line", {1.0}, {{12, 6.5}}, {{12, 7.5}}},
        {"round corners", {1.0, 1.0}, {{12, 0.2}, {12, 13.8}}, {{0.1, 0.1}, {23.8, 0.1}, {0.1, 13.8}, {23.8, 13.8}}},
    };
    for (const auto& c : cases) {
        MenuBarItem item = percentItem("CPU", "50%");
        item.history = c.history;
        const QImage image = rendered({item}, MenuBarStyle::graph, true, 4.0);
        for (const QPointF& point : c.filled)
            EXPECT_TRUE(filled(image, point.x(), point.y())) << c.name << ' ' << point.x() << ' ' << point.y();
        for (const QPointF& point : c.clear)
            EXPECT_FALSE(filled(image, point.x(), point.y())) << c.name << ' ' << point.x() << ' ' << point.y();
    }
}

TEST(MenuBarRenderer, DownloadStandsAboveUpload) {
    MenuBarItem item = networkItem();
    item.lines = {"↓88M", ""};
    const QImage image = rendered({item}, MenuBarStyle::stacked, true, 2.0);
    const QRect ink = inkOf(image, Qt::transparent);
    EXPECT_GT(ink.width(), 20);
    EXPECT_LT(ink.bottom(), image.height() / 2);
}

TEST(MenuBarRenderer, TilesAreSquareAndHoldTheWidestValue) {
    MenuBarItem item = networkItem();
    item.lines = {"↓1000K", "↑1000K"};
    for (int side : {22, 44})
        for (const MenuBarItem& content : {item, percentItem("CPU", "100%")}) {
            const QImage tile = MenuBarRenderer::tile(content, true, palette, side);
            ASSERT_EQ(tile.size(), QSize(side, side));
            EXPECT_GT(pixelsLike(tile, palette.label), side / 2);
        }
}

TEST(SamePicture, HistoriesCountOnlyWhereTheyAreDrawn) {
    MenuBarItem a = percentItem("CPU", "12%");
    MenuBarItem b = a;
    b.history = {0.5};
    b.fraction = 0.124;
    EXPECT_TRUE(samePicture({a}, {b}, MenuBarStyle::stacked));
    EXPECT_TRUE(samePicture({a}, {b}, MenuBarStyle::inlined));
    EXPECT_FALSE(samePicture({a}, {b}, MenuBarStyle::graph));
    EXPECT_FALSE(samePicture({a}, {a, a}, MenuBarStyle::stacked));
    b.severity = MenuBarSeverity::warning;
    EXPECT_FALSE(samePicture({a}, {b}, MenuBarStyle::stacked));
}

} // namespace
} // namespace vantrix
