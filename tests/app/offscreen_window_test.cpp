#include "app/offscreen_window.h"

#include <QPainter>

#include <gmock/gmock.h>

namespace vantrix {
namespace {

/// A picture 300 by 400 pixels with a dot whose lower edge is at `lowest`; 0: no dot.
QImage withContentDownTo(int lowest, const QColor& ink = Qt::red) {
    QImage image(300, 400, QImage::Format_RGB32);
    image.fill(QColor(30, 30, 33));
    if (lowest > 0)
        QPainter(&image).fillRect(150, lowest - 6, 6, 6, ink);
    return image;
}

TEST(PopoverCrop, CutsBelowTheLowestContent) {
    const struct {
        const char* name;
        QImage image;
        int height;
    } cases[] = {
        {"content above", withContentDownTo(100), 124},
        {"content within the margin of the end", withContentDownTo(377), 400},
        {"no content", withContentDownTo(0), 400},
        {"content too faint to see", withContentDownTo(100, QColor(33, 33, 36)), 400},
    };
    for (const auto& c : cases)
        EXPECT_EQ(croppedBelowContent(c.image).size(), QSize(300, c.height)) << c.name;
    EXPECT_TRUE(croppedBelowContent(QImage()).isNull());
}

} // namespace
} // namespace vantrix
