#include "linux/status_area/notifier_host.h"

#include <array>

namespace vantrix {

namespace {

using std::chrono::milliseconds;

struct KnownHost {
    std::string_view processName;
    NotifierHost host;
    bool isPrefix = false;
};

// plasmashell and lxqt-panel leak memory with every signal, so they get fewer. Plasma's watcher runs in kded.
// waybar fetches everything on any signal, but uses only what the signal names.
constexpr NotifierHost waybar{
    .layout = NotifierLayout::wide, .darkPanel = true, .tellsClickPoint = false, .coversPopover = true};
constexpr NotifierHost mate{
    .layout = NotifierLayout::wide, .fetchesAll = true, .sortsIdentifiers = true, .tellsClickPoint = false};
constexpr NotifierHost gnomeShell{.layout = NotifierLayout::labelled, .darkPanel = true, .clickOpensMenu = true};
constexpr NotifierHost xfce{.fetchesAll = true, .newestFirst = true}; // its plugins call themselves panel-6-systray
constexpr NotifierHost plasma{.pace = milliseconds(4000), .isPlasma = true, .fetchesAll = true, .hasQtKeys = true};
constexpr std::array<KnownHost, 11> knownHosts{{
    {"waybar", waybar},
    {"notification-ar", mate},
    {"mate-panel", mate},
    {"gnome-shell", gnomeShell},
    {"plasmashell", plasma},
    {"kded5", plasma},
    {"kded6", plasma},
    {"lxqt-panel", {.pace = milliseconds(4000), .hasQtKeys = true}},
    {"panel-", xfce, true},
    {"xfce4-panel", xfce},
    {"swaybar", {.darkPanel = true, .premultiplied = true, .newestFirst = true, .tellsClickPoint = false}},
}};

} // namespace

NotifierHost notifierHostNamed(std::string_view processName) {
    for (const auto& known : knownHosts)
        if (known.isPrefix ? processName.starts_with(known.processName) : known.processName == processName)
            return known.host;
    return {};
}

} // namespace vantrix
