#include "linux/status_area/host_panel.h"

#include <algorithm>

#include "linux/status_area/xcb_support.h"

namespace vantrix {

namespace {

constexpr int mostSearches = 10; // not every host has a panel that can be known
constexpr int mostDoublings = 2;
constexpr int thinnest = 8; // pixels; panels that hide leave less of themselves

/// A line through what is shown at the end of the panel, where status areas are.
QRect sampleOf(QRect area) {
    constexpr int length = 512;
    constexpr int thickness = 2;
    const bool upright = area.height() > area.width();
    if (upright)
        area.setTop(std::max(area.top(), area.bottom() + 1 - length));
    else
        area.setLeft(std::max(area.left(), area.right() + 1 - length));
    return upright ? QRect(area.left() + area.width() / 4, area.top(), thickness, area.height())
                   : QRect(area.left(), area.top() + area.height() / 4, area.width(), thickness);
}

/// The outermost window of a process among `window` and those within it; 0 where there is none.
xcb_window_t windowOf(xcb_connection_t* connection, const std::set<std::uint32_t>& processes, xcb_window_t window,
                      int depth = 0) {
    constexpr int deepest = 6;
    const auto process = xcbValues(connection, window, xcbAtom(connection, "_NET_WM_PID"));
    if (process.size() == 1 && processes.contains(process[0]))
        return window;
    if (depth == deepest)
        return XCB_NONE;
    for (const xcb_window_t child : xcbChildren(connection, window))
        if (const xcb_window_t found = windowOf(connection, processes, child, depth + 1))
            return found;
    return XCB_NONE;
}

/// What can be seen of a window, on the root window; empty while that is next to nothing.
QRect seen(xcb_window_t window) {
    xcb_connection_t* connection = xcbConnection();
    const auto ancestors = xcbAncestors(connection, window);
    const QRect place = xcbRootRect(connection, window);
    const QRect area = xcbVisibleRect(connection, window, ancestors).translated(place.topLeft());
    if (std::min(area.width(), area.height()) < thinnest)
        return {};
    const xcb_window_t outermost = ancestors.empty() ? window : ancestors.back();
    return xcbTopWindowAt(connection, area.center()) == outermost ? area : QRect();
}

} // namespace

bool HostPanel::canLook() {
    return xcbConnection() != nullptr && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

bool HostPanel::addReader(uint process) {
    constexpr std::size_t mostProcesses = 64; // of which one has the panel
    if (processes_.size() >= mostProcesses)
        processes_.clear();
    if (process == 0 || !canLook() || !processes_.insert(process).second)
        return false;
    searches_ = 0;
    lookSoon();
    return look();
}

void HostPanel::lookSoon() {
    sinceLook_.invalidate();
    sameLooks_ = 0;
}

bool HostPanel::look() {
    const auto interval = lookInterval_ * (1 << std::min(sameLooks_, mostDoublings));
    if (processes_.empty() || (sinceLook_.isValid() && !sinceLook_.hasExpired(interval.count())))
        return false;
    sinceLook_.start();
    const bool changed = lookNow();
    sameLooks_ = changed ? 0 : sameLooks_ + 1;
    return changed;
}

bool HostPanel::lookNow() {
    if (dock_ == XCB_NONE || xcbRootRect(xcbConnection(), window_).isEmpty())
        find();
    if (dock_ == XCB_NONE)
        return false;
    place_ = xcbRootRect(xcbConnection(), dock_);
    const bool upright = place_.height() > place_.width();
    QRect area = seen(window_);
    if (area.isEmpty())
        area = seen(dock_); // a status area without items takes no room
    const auto ground = area.isEmpty() ? ground_ : xcbScreenColor(xcbConnection(), sampleOf(area));
    const bool changed = ground != ground_ || upright != upright_;
    ground_ = ground;
    upright_ = upright;
    return changed;
}

void HostPanel::find() {
    dock_ = window_ = XCB_NONE;
    if (++searches_ > mostSearches)
        return;
    xcb_connection_t* connection = xcbConnection();
    const auto typeProperty = xcbAtom(connection, "_NET_WM_WINDOW_TYPE");
    const auto dockType = xcbAtom(connection, "_NET_WM_WINDOW_TYPE_DOCK");
    const auto managed = xcbAtom(connection, "_NET_CLIENT_LIST");
    for (const xcb_window_t client : xcbValues(connection, xcbScreen(connection)->root, managed)) {
        const auto types = xcbValues(connection, client, typeProperty);
        if (std::find(types.begin(), types.end(), dockType) == types.end())
            continue;
        window_ = windowOf(connection, processes_, client);
        if (window_ == XCB_NONE)
            continue;
        dock_ = client;
        searches_ = 0;
        return;
    }
}

} // namespace vantrix
