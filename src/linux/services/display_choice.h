#pragma once

#include <functional>

namespace vantrix {

enum class DisplayKind { none, x11, wayland };

/// What is to be known of a session before the program draws on it. Asked only as far as it matters, because an answer
/// may take a while, or start an X server.
struct DisplayQuestions {
    std::function<bool()> waylandIsUsable;
    /// The compositor places windows beside its panels, and this program knows how to ask it to.
    std::function<bool()> hasLayers;
    /// A panel embeds windows of X11, which is better than to be an item in one that does not.
    std::function<bool()> hasX11Tray;
    std::function<bool()> expectsNotifierHost;
    std::function<bool()> x11Answers;
};

/// Wayland where nothing is lost by it, as its windows are sharp at every scale; else X11, also in a Wayland session,
/// where a program can neither place its windows nor dock them otherwise.
DisplayKind chooseDisplay(const DisplayQuestions& session);

} // namespace vantrix
