#include "popover/popover_place.h"

#include <gtest/gtest.h>

namespace vantrix {
namespace {

TEST(PopoverHeight, LeavesAMarginButNeverBecomesUseless) {
    EXPECT_EQ(popoverHeight(1080.0), 1050);
    EXPECT_EQ(popoverHeight(400.0), 480);
    EXPECT_EQ(popoverHeight(0.0), 870); // no screen
    for (const auto& [content, height] : {std::pair(300, 480), {700, 700}, {2000, 1050}})
        EXPECT_EQ(popoverHeight(1080.0, content), height);
}

TEST(PopoverPlace, KeepsAwayFromItemPanelAndEdges) {
    struct Case {
        const char* name;
        QSize size;
        QRect anchor;
        QRect visible;
        QPoint expected;
    };
    const QRect area(0, 30, 1000, 700);             // a panel of 30 points at the top, and one at the bottom
    const QRect middle(40, 0, 920, 760);            // panels of 40 points on both sides
    const QRect leftScreen(-1280, -200, 1280, 994); // a screen to the left and higher up, its panel at the bottom
    const QSize small(340, 200);
    const QSize tall(340, 670);
    const Case cases[] = {
        {"below a top panel, centred", tall, {500, 0, 100, 30}, area, {379, 38}},
        {"pushed in from the right edge", tall, {960, 0, 40, 30}, area, {652, 38}},
        {"above a bottom panel", tall, {500, 730, 100, 30}, area, {379, 52}},
        {"below a panel that is thicker than the item", tall, {500, 2, 100, 16}, area, {379, 38}},
        {"right of a panel on the left", {340, 730}, {5, 400, 30, 22}, middle, {48, 22}},
        {"left of a panel on the right", {340, 730}, {965, 20, 30, 22}, middle, {612, 20}},
        {"beside a strip on the desktop", tall, {790, 38, 200, 30}, area, {442, 38}},
        {"where nothing is free", {900, 670}, {400, 300, 200, 30}, area, {49, 52}},
        {"an item on a screen to the left", {340, 964}, {-120, 794, 100, 30}, leftScreen, {-348, -178}},
        {"higher than the area", {340, 480}, {500, 0, 100, 30}, {0, 30, 1000, 400}, {379, 38}},
        {"an anchor off the screen", small, {-500, -500, 10, 10}, area, {8, 38}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(popoverPlace(c.size, c.anchor, c.visible), QRect(c.expected, c.size)) << c.name;
}

TEST(PopoverPlace, GetsLowerWhereAPanelIsCountedToTheVisibleArea) {
    const QRect screen(0, 0, 1920, 1080);
    const QSize size(340, popoverHeight(1080.0));
    EXPECT_EQ(popoverPlace(size, {1700, 0, 100, 28}, screen), QRect(1572, 36, 340, 1036));
    EXPECT_EQ(popoverPlace(size, {1700, 1050, 100, 30}, screen), QRect(1572, 8, 340, 1034));
}

TEST(PopoverPlace, KeepsTheEdgeAtTheItemWhenItsHeightChanges) {
    const struct {
        const char* name;
        QRect place;
        int height;
        QRect anchor;
        QRect expected;
    } cases[] = {
        {"grows downwards", {379, 38, 340, 500}, 600, {500, 0, 100, 30}, {379, 38, 340, 600}},
        {"as far as there is room", {379, 38, 340, 500}, 900, {500, 0, 100, 30}, {379, 38, 340, 684}},
        {"grows upwards", {379, 222, 340, 500}, 600, {500, 730, 100, 30}, {379, 122, 340, 600}},
        {"shrinks downwards", {379, 122, 340, 600}, 500, {500, 730, 100, 30}, {379, 222, 340, 500}},
        {"beside", {446, 130, 340, 600}, 500, {790, 200, 200, 30}, {446, 200, 340, 500}},
        {"beside, at the lower edge", {446, 200, 340, 500}, 600, {790, 200, 200, 30}, {446, 122, 340, 600}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(resizedPlace(c.place, c.height, c.anchor, {0, 30, 1000, 700}), c.expected) << c.name;
}

TEST(ScreenOf, IsTheOneUnderTheItemOrTheNearest) {
    // One to the left and higher up, one to the right at twice the density: its points are larger, so a gap is left.
    const std::vector<QRect> screens = {{0, 0, 1920, 1080}, {-1280, -200, 1280, 1024}, {3840, 0, 1280, 720}};
    struct Case {
        const char* name;
        QRect anchor;
        std::size_t expected;
    };
    const Case cases[] = {
        {"on the first", {1800, 0, 100, 30}, 0},     {"on the left one", {-120, 794, 100, 30}, 1},
        {"on the right one", {4000, 0, 100, 30}, 2}, {"across two", {-40, 0, 60, 30}, 1},
        {"in the gap", {3700, 0, 100, 30}, 2},       {"above all", {600, -3000, 10, 10}, 0},
    };
    for (const Case& c : cases)
        EXPECT_EQ(screenOf(c.anchor, screens), c.expected) << c.name;
}

} // namespace
} // namespace vantrix
