#include "linux/status_area/halo.h"

#include <QPainter>

#include <gtest/gtest.h>

#include "linux/status_area/row_pixmaps.h"
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

TEST(RowPixmaps, WhatIsKeptEqualsWhatIsMadeAfresh) {
    const auto item = [](const char* label, std::vector<std::string> lines) {
        return MenuBarItem{.label = label, .lines = std::move(lines), .history = {0.2, 0.9}, .reference = "100%"};
    };
    const MenuBarItem memory = item("RAM", {"48%"});
    const MenuBarPalette palette = MenuBarPalette::onDark();
    for (const MenuBarStyle style : {MenuBarStyle::inlined, MenuBarStyle::stacked, MenuBarStyle::graph})
        for (const std::optional<QColor>& halo : {std::optional<QColor>(), std::optional(QColor(32, 33, 36))}) {
            RowPixmaps kept(false);
            for (const char* text : {"12%", "100%", "7%", "1000000%", "3%"}) {
                const std::vector<MenuBarItem> items{item("CPU", {text}), memory, item("NET", {"R 1K", "W 2M"})};
                const StatusRow row({.items = items, .style = style});
                NotifierPixmaps afresh;
                for (const int scale : {1, 2}) {
                    QImage whole;
                    MenuBarRenderer::render(whole, items, style, true, palette, scale);
                    afresh << toNotifierPixmap(halo ? withHalo(whole, *halo, scale) : whole);
                }
                EXPECT_EQ(kept.draw(row, palette, halo), afresh) << text;
            }
        }
}

} // namespace
} // namespace vantrix
