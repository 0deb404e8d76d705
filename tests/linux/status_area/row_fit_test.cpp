#include "linux/status_area/row_fit.h"

#include <QImage>
#include <QPainter>

#include <gmock/gmock.h>

namespace vantrix {
namespace {

StatusRow row(MenuBarStyle style) {
    return StatusRow({.items = {{.label = "CPU", .lines = {"12%"}, .history = {0.2, 0.9}, .reference = "100%"},
                                {.label = "NET", .lines = {"↓99M", "↑10K"}, .reference = "↓99M"},
                                {.label = "DISQ", .lines = {"83%"}, .fraction = 0.8, .reference = "100%"}},
                      .style = style});
}

/// How many pixels the row sets above and below its slot.
int cutPixels(const RowFit& fit, int height, double pixels) {
    constexpr int margin = 20;
    QImage image(QSize(800, height + 2 * margin), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(pixels);
    QPainter painter(&image);
    painter.setTransform(fit.place({0.0, margin / pixels, 800 / pixels, height / pixels}, pixels), true);
    fit.row.paint(painter, MenuBarPalette::onLight());
    painter.end();
    int cut = 0;
    int seen = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 0)
                ++(y < margin || y >= margin + height ? cut : seen);
    EXPECT_GT(seen, 300);
    return cut;
}

TEST(RowFit, CutsNothingInASlotOfAnyHeight) {
    for (const int height : {16, 18, 22, 24, 30, 44}) {
        for (const double pixels : {1.0, 1.25, 1.5, 2.0}) {
            for (const auto style : {MenuBarStyle::inlined, MenuBarStyle::stacked, MenuBarStyle::graph}) {
                SCOPED_TRACE(testing::Message()
                             << height << " px at " << pixels << ", style " << static_cast<int>(style));
                const auto fit = fitRow(row(style), {400.0, height / pixels}, pixels);
                ASSERT_TRUE(fit);
                EXPECT_EQ(cutPixels(*fit, height, pixels), 0);
                EXPECT_GE(fit->row.smallestType() * fit->scale * pixels, 7.0);
            }
        }
    }
}

TEST(RowFit, KeepsTheStyleWhereItCanBeRead) {
    const StatusRow wanted = row(MenuBarStyle::stacked);
    EXPECT_EQ(fitRowInHeight(wanted, 22.0, 1.0)->scale, 1.0);
    EXPECT_TRUE(fitRowInHeight(wanted, 18.0, 1.0)->row.looksLike(wanted));
    EXPECT_TRUE(fitRowInHeight(wanted, 16.0, 1.0)->row.looksLike(wanted.inlined()));
    EXPECT_TRUE(fitRowInHeight(wanted, 11.0, 2.0)->row.looksLike(wanted)); // 22 px of a screen at scale 2
    EXPECT_FALSE(fitRowInHeight(wanted, 7.0, 1.0));                        // across a vertical panel
    EXPECT_FALSE(fitRow(wanted, {44.0, 44.0}, 1.0));
    EXPECT_TRUE(fitRow(StatusRow(), {22.0, 22.0}, 1.0)); // the gauge
}

} // namespace
} // namespace vantrix
