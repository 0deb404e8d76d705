#include <string>

#include <gtest/gtest.h>

#include "linux/services/display_choice.h"

namespace vantrix {
namespace {

struct Session {
    const char* name;
    std::string has; ///< w: Wayland, l: layers, t: an X11 tray, n: a notifier host, x: an X server
    DisplayKind chosen;
    std::string asked; ///< no more than it takes: each answer may cost time, or start an X server
};

TEST(DisplayChoice, IsWaylandWhereNothingIsLostByIt) {
    const Session sessions[] = {
        {"Plasma 6, sway with a bar", "wlnx", DisplayKind::wayland, "wltn"},
        {"the same without an X server", "wln", DisplayKind::wayland, "wltn"},
        {"a panel that embeds windows of X11", "wltnx", DisplayKind::x11, "wltx"},
        {"no panel that shows items: there will be a strip", "wlx", DisplayKind::x11, "wltnx"},
        {"GNOME, and any build without layers", "wtnx", DisplayKind::x11, "wlx"},
        {"GNOME without an X server", "wn", DisplayKind::wayland, "wlx"},
        {"an X11 session", "tnx", DisplayKind::x11, "wx"},
        {"a console", "", DisplayKind::none, "wx"},
    };
    for (const Session& session : sessions) {
        std::string asked;
        const auto question = [&](char letter) {
            return [&, letter] {
                asked += letter;
                return session.has.find(letter) != std::string::npos;
            };
        };
        const auto chosen = chooseDisplay({question('w'), question('l'), question('t'), question('n'), question('x')});
        EXPECT_EQ(chosen, session.chosen) << session.name;
        EXPECT_EQ(asked, session.asked) << session.name;
    }
}

} // namespace
} // namespace vantrix
