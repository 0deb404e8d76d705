#include "linux/status_area/plasma_panel.h"

#include <gtest/gtest.h>

#include "linux/desktop_folders.h"

namespace vantrix {
namespace {

TEST(PlasmaPanel, HasTheColourOfItsThemeOrElseOfTheScheme) {
    const std::string light = "[Colors:Window]\nBackgroundNormal=239,240,241\n";
    const std::string dark = "[Colors:Window]\nBackgroundNormal=42,46,50\n";
    const std::string twilight = "[Theme]\nname=breeze-dark\n";
    const QColor lightGround(239, 240, 241);
    const QColor darkGround(42, 46, 50);
    const struct {
        const char* name;
        std::vector<std::pair<const char*, std::string>> files;
        std::optional<QColor> expected;
    } cases[] = {
        {"nothing is written down", {}, std::nullopt},
        {"a scheme", {{"own/kdeglobals", dark}}, darkGround},
        {"a scheme of the session's, and one of the user's own",
         {{"session/kdeglobals", dark}, {"own/kdeglobals", light}},
         lightGround},
        {"dark panels under a light scheme", {{"own/kdeglobals", light}, {"session/plasmarc", twilight}}, darkGround},
        {"a theme that follows the scheme",
         {{"own/kdeglobals", light}, {"own/plasmarc", "[Theme]\nname=flat\n"}},
         lightGround},
        {"no colour", {{"own/kdeglobals", "[Colors:Window]\nBackgroundNormal=dark\n"}}, std::nullopt},
    };
    for (const auto& c : cases) {
        const DesktopFolders folder;
        folder.write("data/plasma/desktoptheme/breeze-dark/colors", dark);
        for (const auto& [file, text] : c.files)
            folder.write(file, text);
        EXPECT_EQ(plasmaPanelColor(), c.expected) << c.name;
    }
}

} // namespace
} // namespace vantrix
