#include "linux/status_area/halo.h"

#include <QPainter>

#include <gtest/gtest.h>

#include "views/theme_colors.h"

namespace vantrix {
namespace {

TEST(Halo, MakesALetterReadableOnAnyGroundAndEndsNearIt) {
    for (const int pixels : {1, 2}) {
        QImage letter(40 * pixels, 22 * pixels, QImage::Format_ARGB32_Premultiplied);
        letter.fill(Qt::transparent);
        QPainter(&letter).fillRect(QRect(20 * pixels, 4 * pixels, pixels, 12 * pixels), Qt::white);
        const QColor halo(32, 33, 36);
        for (const QColor& ground : {QColor(Qt::white), QColor(128, 128, 128), halo}) {
            QImage seen(letter.size(), QImage::Format_RGB32);
            seen.fill(ground);
            QPainter(&seen).drawImage(0, 0, withHalo(letter, halo, pixels));
            const auto at = [&](int x) { return seen.pixelColor(x * pixels, 10 * pixels); };
            EXPECT_EQ(at(20), QColor(Qt::white));
            for (const int beside : {19, 21})
                EXPECT_GE(contrast(at(20), at(beside)), 4.5);
            EXPECT_EQ(at(14), ground);
        }
    }
}

} // namespace
} // namespace vantrix
