#include "linux/status_area/panel_palette.h"

#include <gtest/gtest.h>

#include "views/theme_colors.h"

namespace vantrix {
namespace {

TEST(PanelPalette, EverythingStandsOutFromAnyPanel) {
    const struct {
        const char* name;
        QColor ground;
        bool dark;          ///< light text is read better on it
        bool usual = false; ///< the system's own colours do
    } panels[] = {{"black", Qt::black, true, true},
                  {"white", Qt::white, false, true},
                  {"dark grey, as of XFCE", QColor(43, 48, 59), true, true},
                  {"light grey, as of KDE", QColor(239, 240, 241), false, true},
                  {"mid grey", QColor(128, 128, 128), false},
                  {"a grey that white is read on a little better than black", QColor(116, 116, 116), true},
                  {"blue, as of KDE", QColor(61, 174, 233), false},
                  {"orange", QColor(255, 159, 10), false},
                  {"red", QColor(208, 10, 24), true},
                  {"green", QColor(40, 160, 60), false}};
    for (const auto& panel : panels) {
        for (const std::optional<QColor>& text : {std::optional<QColor>(), std::optional(panel.ground)}) {
            SCOPED_TRACE(panel.name);
            const MenuBarPalette row = paletteOn(panel.ground, text);
            EXPECT_EQ(row.label.lightness() > 128, panel.dark);
            for (const QColor& drawn : {row.label, row.orange, row.red, withAlpha(row.label, row.captionOpacity),
                                        withAlpha(row.label, row.barOpacity)})
                EXPECT_GE(contrast(over(drawn, panel.ground), panel.ground), 3.0);
            const MenuBarPalette system = paletteForPanel(panel.dark);
            EXPECT_EQ(row == system, panel.usual);
            EXPECT_NEAR(row.orange.hslHueF(), system.orange.hslHueF(), 0.02);
            EXPECT_NEAR(row.red.hslHueF(), system.red.hslHueF(), 0.02);
        }
    }
    EXPECT_EQ(paletteOn(Qt::black, QColor(0, 230, 120)).label, QColor(0, 230, 120));
}

} // namespace
} // namespace vantrix
