#include "menubar/menu_bar_renderer.h"

#include <cmath>

#include <QFontDatabase>
#include <QPainter>

#include <gmock/gmock.h>

#include "menubar/monospaced_font.h"

namespace vantrix {
namespace {

const MenuBarPalette palette{QColor(255, 255, 255), QColor(255, 160, 0), QColor(255, 0, 0)};

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
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += pixel.alpha() > 100 && std::abs(pixel.red() - color.red()) < 24 &&
                     std::abs(pixel.green() - color.green()) < 24 && std::abs(pixel.blue() - color.blue()) < 24;
        }
    return count;
}

TEST(MonospacedFont, GivesEveryDigitTheSameAdvanceInEveryInstalledFont) {
    for (const QString& family : QFontDatabase::families()) {
        if (!QFontDatabase::isScalable(family))
            continue;
        const MonospacedFont font(QFont(family), 11.5, QFont::Medium);
        const double cell = font.width("0");
        for (const char* digit : {"1", "2", "3", "4", "5", "6", "7", "8", "9"})
            EXPECT_DOUBLE_EQ(font.width(digit), cell) << family.toStdString() << ' ' << digit;
        EXPECT_DOUBLE_EQ(font.width("11%"), font.width("88%")) << family.toStdString();
    }
}

TEST(MonospacedFont, EvensOutAFontWhoseOwnDigitsDiffer) {
    // Most interface fonts have even digits of their own; one whose digits differ must be installed to prove anything.
    for (const QString& family : QFontDatabase::families()) {
        QFont font(family);
        font.setPixelSize(100);
        const QFontMetricsF metrics(font);
        if (std::abs(metrics.horizontalAdvance(u'1') - metrics.horizontalAdvance(u'8')) < 1.0)
            continue;
        EXPECT_DOUBLE_EQ(MonospacedFont(font, 11.5, QFont::Normal).width("1111"),
                         MonospacedFont(font, 11.5, QFont::Normal).width("8888"));
        return;
    }
    GTEST_SKIP() << "no installed font has digits of unequal advance";
}

TEST(MenuBarRenderer, AnInlineItemIsItsLabelAGapAndTheReservedValue) {
    const MonospacedFont label(9.0, QFont::DemiBold);
    const MonospacedFont value(11.5, QFont::Medium);
    const auto cpu = percentItem("CPU", "12%");
    const double expected = std::ceil(label.width("CPU")) + 4.0 + std::ceil(value.width("100%"));
    EXPECT_DOUBLE_EQ(MenuBarRenderer::layout(cpu, MenuBarStyle::inlined).total, expected);
    EXPECT_EQ(MenuBarRenderer::size({cpu}, MenuBarStyle::inlined), QSizeF(std::ceil(expected), 22.0));
    EXPECT_DOUBLE_EQ(MenuBarRenderer::layout(networkItem(), MenuBarStyle::inlined).columnWidth,
                     std::ceil(2 * value.width("↓99M") + value.width(" ")));
}

TEST(MenuBarRenderer, WidthsStayWhileNumbersChangeAndGrowOnlyForWhatIsWider) {
    const auto width = [](const MenuBarItem& item, MenuBarStyle style) {
        return MenuBarRenderer::size({item}, style).width();
    };
    for (MenuBarStyle style : {MenuBarStyle::inlined, MenuBarStyle::stacked, MenuBarStyle::graph}) {
        EXPECT_EQ(width(percentItem("CPU", "1%"), style), width(percentItem("CPU", "100%"), style));
        MenuBarItem wide = networkItem();
        wide.lines = {"↓1000K", "↑1000K"};
        EXPECT_GT(width(wide, style), width(networkItem(), style));
    }
    EXPECT_GT(width(percentItem("A VERY WIDE CAPTION", "1%"), MenuBarStyle::stacked),
              width(percentItem("CPU", "1%"), MenuBarStyle::stacked));
    EXPECT_EQ(MenuBarRenderer::layout(networkItem(), MenuBarStyle::graph).total,
              MenuBarRenderer::layout(networkItem(), MenuBarStyle::stacked).total + 28.0);
    MenuBarItem nothing;
    EXPECT_EQ(MenuBarRenderer::size({nothing}, MenuBarStyle::stacked).width(), 1.0);
}

TEST(MenuBarRenderer, SpacesItemsByTheStyle) {
    const auto cpu = percentItem("CPU", "12%");
    for (const auto& [style, spacing] :
         {std::pair{MenuBarStyle::inlined, 10.0}, {MenuBarStyle::stacked, 8.0}, {MenuBarStyle::graph, 8.0}}) {
        const double one = MenuBarRenderer::layout(cpu, style).total;
        EXPECT_EQ(MenuBarRenderer::size({cpu, cpu, cpu}, style).width(), std::ceil(3 * one + 2 * spacing));
    }
}

TEST(MenuBarRenderer, ImagesHaveTheScalesPixelsAndStayInside) {
    const std::vector<MenuBarItem> items{percentItem("CPU", "100%"), networkItem()};
    for (double scale : {1.0, 1.25, 1.5, 2.0, 3.0})
        for (MenuBarStyle style : {MenuBarStyle::inlined, MenuBarStyle::stacked, MenuBarStyle::graph}) {
            const QImage image = rendered(items, style, true, scale);
            const QSizeF size = MenuBarRenderer::size(items, style);
            EXPECT_EQ(image.width(), std::ceil(size.width() * scale));
            EXPECT_EQ(image.height(), std::ceil(22.0 * scale));
            for (int x = 0; x < image.width(); ++x) {
                EXPECT_EQ(qAlpha(image.pixel(x, 0)), 0) << "clipped at the top, scale " << scale;
                EXPECT_EQ(qAlpha(image.pixel(x, image.height() - 1)), 0)
                    << "clipped at the bottom, scale " << scale << ", style " << static_cast<int>(style) << ", x " << x;
            }
        }
}

TEST(MenuBarRenderer, ColoursTheValueBySeverityOnlyWhenAsked) {
    MenuBarItem item = percentItem("CPU", "88%");
    item.severity = MenuBarSeverity::critical;
    EXPECT_GT(pixelsLike(rendered({item}, MenuBarStyle::stacked, true, 3.0), palette.red), 20);
    EXPECT_EQ(pixelsLike(rendered({item}, MenuBarStyle::stacked, false, 3.0), palette.red), 0);
    item.severity = MenuBarSeverity::warning;
    EXPECT_GT(pixelsLike(rendered({item}, MenuBarStyle::inlined, true, 3.0), palette.orange), 20);
    item.severity = MenuBarSeverity::normal;
    EXPECT_EQ(pixelsLike(rendered({item}, MenuBarStyle::inlined, true, 3.0), palette.orange), 0);
}

/// How strong the graph's fill is at a point of its 24 × 14 rectangle, `up` counted from its bottom edge.
bool filled(const QImage& image, double x, double up) {
    const int column = static_cast<int>(x * image.devicePixelRatio());
    const int row = static_cast<int>((18.0 - up) * image.devicePixelRatio());
    return qAlpha(image.pixel(column, row)) > 128;
}

TEST(MenuBarRenderer, TheGraphShowsTheNewestTwentyFourValues) {
    MenuBarItem item = percentItem("CPU", "50%");
    item.history.assign(16, 1.0); // too old to be drawn
    item.history.insert(item.history.end(), 24, 0.5);
    QImage image = rendered({item}, MenuBarStyle::graph, true, 4.0);
    for (double x : {4.0, 12.0, 20.0}) {
        EXPECT_TRUE(filled(image, x, 6.5)) << x;
        EXPECT_FALSE(filled(image, x, 7.5)) << x;
    }
    item.history = {0.0, 2.0}; // rises to the right, the value beyond 1 clamped
    image = rendered({item}, MenuBarStyle::graph, true, 4.0);
    EXPECT_FALSE(filled(image, 4.0, 5.0));
    EXPECT_TRUE(filled(image, 20.0, 5.0));
}

TEST(MenuBarRenderer, AShortHistoryDrawsABarOfTheFraction) {
    MenuBarItem item = percentItem("DISK", "50%");
    for (const std::vector<double>& history : {std::vector<double>{}, std::vector<double>{1.0}}) {
        item.history = history;
        const QImage image = rendered({item}, MenuBarStyle::graph, true, 4.0);
        EXPECT_TRUE(filled(image, 12.0, 6.5));
        EXPECT_FALSE(filled(image, 12.0, 7.5));
    }
}

TEST(MenuBarRenderer, TheGraphsCornersAreRoundedAndItsFillStaysWithinThem) {
    MenuBarItem item = percentItem("CPU", "100%");
    item.history = {1.0, 1.0};
    const QImage image = rendered({item}, MenuBarStyle::graph, true, 4.0);
    for (double x : {0.1, 23.8})
        for (double up : {0.1, 13.8})
            EXPECT_FALSE(filled(image, x, up)) << x << ' ' << up;
    EXPECT_TRUE(filled(image, 12.0, 0.2));
    EXPECT_TRUE(filled(image, 12.0, 13.8));
}

TEST(MenuBarRenderer, DownloadStandsAboveUpload) {
    MenuBarItem item = networkItem();
    item.lines = {"↓88M", ""};
    const QImage image = rendered({item}, MenuBarStyle::stacked, true, 2.0);
    int upper = 0;
    int lower = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            (y < image.height() / 2 ? upper : lower) += qAlpha(image.pixel(x, y)) > 0;
    EXPECT_GT(upper, 50);
    EXPECT_EQ(lower, 0);
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
