#include "menubar/symbol.h"

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

TEST(Symbols, EveryChoiceWithASymbolHasADrawing) {
    const auto check = [](const auto& choices) {
        for (const auto& choice : choices)
            EXPECT_GT(coverage(ownSymbol(choice.symbolName, 16)), 10.0) << choice.symbolName;
    };
    check(menuBarModules);
    check(popoverCards);
    check(settingsTabs);
}

TEST(Symbols, LandOnWholeDevicePixels) {
    const struct {
        const char* name;
        double ratio; ///< device pixels per point
        QPointF offset;
        QRectF rect;   ///< points
        QRect drawnAt; ///< pixels
    } cases[] = {{"plain", 1.0, {0, 0}, {4, 5, 16, 16}, {4, 5, 16, 16}},
                 {"between pixels", 1.0, {0.3, 0.2}, {4, 5, 16, 16}, {4, 5, 16, 16}},
                 {"one and a quarter", 1.25, {0, 0}, {4, 8, 16, 16}, {5, 10, 20, 20}},
                 {"one and a half, off", 1.5, {0.1, 0.1}, {4, 6, 15, 15}, {6, 9, 23, 23}},
                 {"centred in a wide place", 1.0, {0, 0}, {4, 5, 30, 16}, {11, 5, 16, 16}}};
    for (const auto& c : cases) {
        QImage page(96, 96, QImage::Format_ARGB32_Premultiplied);
        page.fill(Qt::transparent);
        page.setDevicePixelRatio(c.ratio);
        QPainter painter(&page);
        painter.translate(c.offset);
        const auto transform = painter.transform();
        paintSymbol(painter, "cpu", c.rect, ink);
        EXPECT_EQ(painter.transform(), transform) << c.name;
        painter.end();

        page.setDevicePixelRatio(1.0);
        const auto expected = symbolImage("cpu", ink, c.drawnAt.width());
        EXPECT_EQ(page.copy(c.drawnAt), expected) << c.name;
        EXPECT_NEAR(coverage(page), coverage(expected), 0.001) << c.name;
    }
}

} // namespace
} // namespace vantrix
