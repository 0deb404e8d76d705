#pragma once

#include <chrono>
#include <string_view>

namespace vantrix {

/// How a StatusNotifier host shows the pictures it gets.
enum class NotifierLayout {
    wide,     ///< shows a picture at its full width
    labelled, ///< squashes pictures into a square, but shows a text beside it
    tiles,    ///< shows squares only
};

/// How to treat one host. The defaults are for unknown hosts.
struct NotifierHost {
    NotifierLayout layout = NotifierLayout::tiles;
    /// Least time between two signals for one item.
    std::chrono::milliseconds pace{2000};
    /// The panel is dark whatever the desktop's colour scheme says, unless the user has restyled it.
    bool darkPanel = false;
    /// Plasma's configuration says what colour the panel has.
    bool isPlasma = false;
    /// Takes pictures to have been multiplied by their alpha channel.
    bool premultiplied = false;
    /// Fetches everything again on any signal, so that one signal is enough.
    bool fetchesAll = false;
    /// Puts each new item before those it has.
    bool newestFirst = false;
    /// Puts items in the order of their identifiers.
    bool sortsIdentifiers = false;
    /// The coordinates of a click are those of the root window.
    bool tellsClickPoint = true;
    /// A left click opens the menu, which therefore begins with an entry that does what the click does elsewhere.
    bool clickOpensMenu = false;
    /// Draws its tool tips above the popover.
    bool coversPopover = false;
    /// Is made with Qt, and reads shortcuts in its menus as Qt writes them.
    bool hasQtKeys = false;
    /// The watcher's, which often is that of the panel; 0 where it is not known.
    unsigned process = 0;
};

/// The host whose watcher is a process of that name (as in `/proc/PID/comm`, which cuts it at 15 characters).
NotifierHost notifierHostNamed(std::string_view processName);

} // namespace vantrix
