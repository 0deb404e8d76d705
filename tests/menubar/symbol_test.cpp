#include "menubar/symbol.h"

#include <algorithm>
#include <cstdlib>
#include <string>

#include <QPainter>

#include <gtest/gtest.h>

#include "menubar/display_choices.h"

namespace vantrix {
namespace {

const QColor ink(0x33, 0x88, 0xcc);

/// Sum of all coverage, in whole pixels.
double coverage(const QImage& image) {
    double sum = 0.0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y)) / 255.0;
    return sum;
}

struct Shape {
    const char* name;
    bool symmetric; ///< the left half mirrors the right
};

std::string rowName(const testing::TestParamInfo<Shape>& info) {
    std::string name = info.param.name;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

class Symbol : public testing::TestWithParam<Shape> {};

TEST_P(Symbol, IsDrawnInBlackInsideAMargin) {
    constexpr int side = 96;
    constexpr int margin = side / 24;
    const auto image = ownSymbol(GetParam().name, side);
    ASSERT_EQ(image.size(), QSize(side, side));

    int solid = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const auto pixel = image.pixel(x, y);
            const bool inside = std::min({x, y, side - 1 - x, side - 1 - y}) >= margin;
            ASSERT_TRUE(inside || qAlpha(pixel) == 0) << x << ' ' << y;
            if (qAlpha(pixel) < 255)
                continue;
            ASSERT_EQ(QColor(pixel), QColor(Qt::black)) << x << ' ' << y;
            ++solid;
        }
    }
    EXPECT_GT(solid, side * side / 50);
}

TEST_P(Symbol, MirrorsItselfWhereMeant) {
    if (!GetParam().symmetric)
        return;
    const auto image = ownSymbol(GetParam().name, 96);
    const auto mirrored = image.mirrored(true, false);
    double difference = 0.0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            difference += std::abs(qAlpha(image.pixel(x, y)) - qAlpha(mirrored.pixel(x, y))) / 255.0;
    // Rounding of curves leaves single pixels that differ; a part out of place is far more.
    EXPECT_LT(difference / coverage(image), 0.005);
}

INSTANTIATE_TEST_SUITE_P(
    All, Symbol,
    testing::Values(Shape{"cpu", true}, Shape{"memorychip", true}, Shape{"arrow.up.arrow.down", false},
                    Shape{"internaldrive", false}, Shape{"display", true}, Shape{"thermometer.medium", true},
                    Shape{"battery.0percent", false}, Shape{"battery.25percent", false},
                    Shape{"battery.50percent", false}, Shape{"battery.75percent", false},
                    Shape{"battery.100percent", false}, Shape{"battery.100percent.bolt", false},
                    Shape{"gauge.with.dots.needle.33percent", false}, Shape{"gauge.with.dots.needle.50percent", true},
                    Shape{"network", true}, Shape{"wifi", true}, Shape{"wifi.slash", false},
                    Shape{"cable.connector", true}, Shape{"arrow.down", true}, Shape{"arrow.up", true},
                    Shape{"dot.radiowaves.left.and.right", true}, Shape{"keyboard", true}, Shape{"computermouse", true},
                    Shape{"headphones", true}, Shape{"airpods", true}, Shape{"earbuds.case", true},
                    Shape{"gearshape", true}, Shape{"menubar.rectangle", false}, Shape{"rectangle.stack", true},
                    Shape{"bell.badge", false}, Shape{"chevron.up", true}, Shape{"chevron.down", true},
                    Shape{"ellipsis.circle", true}, Shape{"bolt.fill", false}, Shape{"checkmark", false}),
    rowName);

TEST(Symbols, EveryChoiceWithASymbolHasADrawing) {
    const auto check = [](const auto& choices) {
        for (const auto& choice : choices)
            EXPECT_GT(coverage(ownSymbol(choice.symbolName, 16)), 10.0) << choice.symbolName;
    };
    check(menuBarModules);
    check(popoverCards);
    check(settingsTabs);
}

TEST(Symbols, UnknownNameDrawsNothing) {
    for (const auto* name : {"", "no.such.symbol", "CPU"}) {
        EXPECT_EQ(coverage(symbolImage(name, ink, 32)), 0.0) << name;
        QImage page(32, 32, QImage::Format_ARGB32_Premultiplied);
        page.fill(Qt::white);
        const auto before = page;
        QPainter painter(&page);
        paintSymbol(painter, name, QRectF(0, 0, 32, 32), ink);
        EXPECT_EQ(page, before) << name;
    }
}

TEST(Symbols, TakeTheAskedColour) {
    const auto image = symbolImage("bolt.fill", ink, 48);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ASSERT_TRUE(qAlpha(image.pixel(x, y)) < 255 || QColor(image.pixel(x, y)) == ink) << x << ' ' << y;
    EXPECT_EQ(QColor(image.pixel(24, 24)), ink);
}

TEST(Symbols, TranslucentColourKeepsItsOpacity) {
    QColor faint = ink;
    faint.setAlpha(102);
    const auto image = symbolImage("bolt.fill", faint, 48);
    EXPECT_EQ(qAlpha(image.pixel(24, 24)), 102);
    EXPECT_NEAR(coverage(image), coverage(symbolImage("bolt.fill", ink, 48)) * 0.4, 2.0);
}

TEST(Symbols, BatteryFillsInEqualSteps) {
    const auto filled = [](const char* name) { return coverage(ownSymbol(name, 96)); };
    const double empty = filled("battery.0percent");
    const double full = filled("battery.100percent") - empty;
    ASSERT_GT(full, 0.0);
    EXPECT_NEAR((filled("battery.25percent") - empty) / full, 0.25, 0.03);
    EXPECT_NEAR((filled("battery.50percent") - empty) / full, 0.50, 0.03);
    EXPECT_NEAR((filled("battery.75percent") - empty) / full, 0.75, 0.03);
}

struct NaturalSize {
    const char* name;
    QSizeF natural;
    QRectF place; ///< in a square of 20
};

class SystemSymbolPlace : public testing::TestWithParam<NaturalSize> {};

TEST_P(SystemSymbolPlace, IsCentredAndOnlyEverShrunk) {
    EXPECT_EQ(symbolPlace(GetParam().natural, 20.0), GetParam().place);
}

INSTANTIATE_TEST_SUITE_P(Sizes, SystemSymbolPlace,
                         testing::Values(NaturalSize{"SmallStaysSmall", {12, 6}, {4, 7, 12, 6}},
                                         NaturalSize{"AsLargeAsTheSquare", {20, 20}, {0, 0, 20, 20}},
                                         NaturalSize{"TooWide", {40, 10}, {0, 7.5, 20, 5}},
                                         NaturalSize{"TooTall", {10, 25}, {6, 0, 8, 20}},
                                         NaturalSize{"Nothing", {0, 0}, {10, 10, 0, 0}}),
                         [](const auto& row) { return std::string(row.param.name); });

struct Placement {
    const char* name;
    double ratio; ///< device pixels per point
    QPointF offset;
    QRectF rect;   ///< points
    QRect drawnAt; ///< pixels
};

class SymbolPlacement : public testing::TestWithParam<Placement> {};

TEST_P(SymbolPlacement, LandsOnWholeDevicePixels) {
    const auto& row = GetParam();
    QImage page(96, 96, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::transparent);
    page.setDevicePixelRatio(row.ratio);
    QPainter painter(&page);
    painter.translate(row.offset);
    const auto transform = painter.transform();
    paintSymbol(painter, "cpu", row.rect, ink);
    EXPECT_EQ(painter.transform(), transform);
    painter.end();

    page.setDevicePixelRatio(1.0);
    const auto expected = symbolImage("cpu", ink, row.drawnAt.width());
    EXPECT_EQ(page.copy(row.drawnAt), expected);
    EXPECT_NEAR(coverage(page), coverage(expected), 0.001);
}

INSTANTIATE_TEST_SUITE_P(Scales, SymbolPlacement,
                         testing::Values(Placement{"Plain", 1.0, {0, 0}, {4, 5, 16, 16}, {4, 5, 16, 16}},
                                         Placement{"BetweenPixels", 1.0, {0.3, 0.2}, {4, 5, 16, 16}, {4, 5, 16, 16}},
                                         Placement{"Double", 2.0, {1, 0}, {4, 5, 16, 16}, {10, 10, 32, 32}},
                                         Placement{"OneAndAQuarter", 1.25, {0, 0}, {4, 8, 16, 16}, {5, 10, 20, 20}},
                                         Placement{"OneAndAHalfOff", 1.5, {0.1, 0.1}, {4, 6, 15, 15}, {6, 9, 23, 23}},
                                         Placement{"WideRectCentres", 1.0, {0, 0}, {4, 5, 30, 16}, {11, 5, 16, 16}},
                                         Placement{"TallRectCentres", 1.0, {0, 0}, {4, 5, 16, 30}, {4, 12, 16, 16}}),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace vantrix
