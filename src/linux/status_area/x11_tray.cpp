#include "linux/status_area/x11_tray.h"

#include <algorithm>

#include <QGuiApplication>

#include "linux/status_area/xcb_support.h"

namespace vantrix {

namespace {

constexpr std::uint32_t requestDock = 0;
constexpr std::uint32_t watchedEvents = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;

bool hasAlpha(const xcb_screen_t* screen, std::uint32_t visual) {
    for (auto depth = xcb_screen_allowed_depths_iterator(screen); depth.rem > 0; xcb_depth_next(&depth)) {
        if (depth.data->depth != 32)
            continue;
        for (auto it = xcb_depth_visuals_iterator(depth.data); it.rem > 0; xcb_visualtype_next(&it))
            if (it.data->visual_id == visual)
                return true;
    }
    return false;
}

} // namespace

X11Tray::X11Tray()
    : connection_(xcbConnection()), root_(xcbScreen(connection_)->root),
      selection_(xcbAtom(connection_, "_NET_SYSTEM_TRAY_S0")), opcode_(xcbAtom(connection_, "_NET_SYSTEM_TRAY_OPCODE")),
      manager_(xcbAtom(connection_, "MANAGER")), visualProperty_(xcbAtom(connection_, "_NET_SYSTEM_TRAY_VISUAL")),
      colorsProperty_(xcbAtom(connection_, "_NET_SYSTEM_TRAY_COLORS")) {
    qGuiApp->installNativeEventFilter(this);
    findOwner();
}

X11Tray::~X11Tray() {
    qGuiApp->removeNativeEventFilter(this);
}

bool X11Tray::wantsAlpha() const {
    const auto values = xcbValues(connection_, owner_, visualProperty_);
    return !values.empty() && hasAlpha(xcbScreen(connection_), values[0]);
}

/// The property holds the colours of text, errors, warnings and successes, 16 bits a channel.
void X11Tray::readForeground() {
    foreground_.reset();
    const auto values = xcbValues(connection_, owner_, colorsProperty_);
    if (values.size() < 3)
        return;
    const auto part = [](std::uint32_t value) { return static_cast<int>(value >> 8 & 0xffU); };
    foreground_ = QColor(part(values[0]), part(values[1]), part(values[2]));
}

void X11Tray::dock(std::uint32_t window) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = owner_;
    event.type = opcode_;
    event.data.data32[0] = XCB_CURRENT_TIME;
    event.data.data32[1] = requestDock;
    event.data.data32[2] = window;
    xcb_send_event(connection_, 0, owner_, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    xcb_flush(connection_);
}

void X11Tray::watchSlot(std::vector<std::uint32_t> windows) {
    slot_ = std::move(windows);
    for (const std::uint32_t window : slot_)
        xcb_change_window_attributes(connection_, window, XCB_CW_EVENT_MASK, &watchedEvents);
    xcb_flush(connection_);
}

void X11Tray::findOwner() {
    // Grabbed, so that the owner cannot go away before its end is being watched for.
    xcb_grab_server(connection_);
    const auto cookie = xcb_get_selection_owner(connection_, selection_);
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(connection_, cookie, nullptr));
    owner_ = reply ? reply->owner : static_cast<std::uint32_t>(XCB_NONE);
    if (owner_ != XCB_NONE)
        xcb_change_window_attributes(connection_, owner_, XCB_CW_EVENT_MASK, &watchedEvents);
    xcb_ungrab_server(connection_);
    xcb_flush(connection_);
    readForeground();
}

bool X11Tray::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*) {
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    const int type = event->response_type & 0x7f;
    if (type == XCB_DESTROY_NOTIFY) {
        const auto* destroyed = reinterpret_cast<const xcb_destroy_notify_event_t*>(event);
        if (owner_ == XCB_NONE || destroyed->window != owner_)
            return false;
        findOwner();
        Q_EMIT ownerChanged();
    } else if (type == XCB_CLIENT_MESSAGE) {
        const auto* told = reinterpret_cast<const xcb_client_message_event_t*>(event);
        if (told->type != manager_ || told->data.data32[1] != selection_)
            return false;
        findOwner();
        Q_EMIT ownerChanged();
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto* changed = reinterpret_cast<const xcb_property_notify_event_t*>(event);
        if (owner_ != XCB_NONE && changed->window == owner_ && changed->atom == colorsProperty_) {
            readForeground();
            Q_EMIT looksChanged();
        }
    } else if (type == XCB_CONFIGURE_NOTIFY) {
        const auto* changed = reinterpret_cast<const xcb_configure_notify_event_t*>(event);
        if (std::find(slot_.begin(), slot_.end(), changed->window) != slot_.end())
            Q_EMIT slotChanged();
    } else if (type == XCB_REPARENT_NOTIFY) {
        const auto* moved = reinterpret_cast<const xcb_reparent_notify_event_t*>(event);
        Q_EMIT reparented(moved->window, moved->parent == root_ ? 0 : moved->parent);
    }
    return false;
}

} // namespace vantrix
