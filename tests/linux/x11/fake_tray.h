#pragma once

#include <cstdlib>
#include <functional>
#include <utility>

#include <QColor>
#include <QImage>
#include <QRect>

#include "linux/status_area/xcb_support.h"
#include "posix/spin_until.h"

namespace vantrix::fakes {

/// An X11 system tray with room for one window, on a connection of its own. Nothing happens in it but during
/// `pump()`. Like real trays it takes a wish for room from the window's size hints, and has the last word.
class FakeTray {
  public:
    /// The size that is granted to a window that asks for one.
    using Grant = std::function<QSize(QSize)>;

    static QSize all(QSize wanted) { return wanted; }
    static QSize square(QSize) { return {22, 22}; }

    explicit FakeTray(Grant grant = all, QColor panel = Qt::black) : grant_(std::move(grant)) {
        const std::uint32_t values[] = {panel.rgb() & 0xffffffU, 1};
        window_ = xcb_generate_id(connection_);
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, screen_->root, 300, 0, width, height, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual,
                          XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
        xcb_map_window(connection_, window_);
    }
    ~FakeTray() { xcb_disconnect(connection_); }
    Q_DISABLE_COPY_MOVE(FakeTray)

    /// Becomes the tray of the screen and tells everybody.
    void claim() {
        const auto selection = xcbAtom(connection_, "_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(connection_, window_, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t event{};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = 32;
        event.window = screen_->root;
        event.type = xcbAtom(connection_, "MANAGER");
        event.data.data32[1] = selection;
        event.data.data32[2] = window_;
        send(screen_->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY, event);
    }

    /// Announces the colour of the panel's texts.
    void tellColors(const QColor& text) {
        const auto part = [](int value) { return static_cast<std::uint32_t>(value * 257); };
        std::uint32_t values[12] = {part(text.red()), part(text.green()), part(text.blue())};
        xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_,
                            xcbAtom(connection_, "_NET_SYSTEM_TRAY_COLORS"), XCB_ATOM_CARDINAL, 32, 12, values);
        xcb_flush(connection_);
    }

    /// Changes the panel's colour as a new theme does, without a word to the windows in it.
    void paint(const QColor& panel) {
        const std::uint32_t pixel = panel.rgb() & 0xffffffU;
        xcb_change_window_attributes(connection_, window_, XCB_CW_BACK_PIXEL, &pixel);
        xcb_clear_area(connection_, 0, window_, 0, 0, 0, 0);
        xcb_flush(connection_);
    }

    /// Does what the windows and the server asked for since the last call.
    void pump() {
        while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)})
            handle(*event);
        xcb_flush(connection_);
    }

    void takeIn() {
        icon = asked;
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_, icon, XCB_CW_EVENT_MASK, &mask);
        xcb_reparent_window(connection_, icon, window_, 4, 4);
        resizeIcon(rootRect(icon).size());
    }

    /// Grants anew what the window in it last asked for.
    void layOut() {
        resizeIcon(wanted);
        xcb_flush(connection_);
    }

    /// Takes the keyboard away from whichever window has it.
    void focusRoot() {
        xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_NONE, screen_->root, XCB_CURRENT_TIME);
        xcb_flush(connection_);
    }

    /// False while another client has it.
    bool grabMouse() {
        const auto cookie =
            xcb_grab_pointer(connection_, 0, screen_->root, XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
                             XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
        const XcbReply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(connection_, cookie, nullptr));
        return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    }
    void releaseMouse() {
        xcb_ungrab_pointer(connection_, XCB_CURRENT_TIME);
        xcb_flush(connection_);
    }

    bool isMapped(xcb_window_t window) const {
        const auto cookie = xcb_get_window_attributes(connection_, window);
        const XcbReply<xcb_get_window_attributes_reply_t> reply(
            xcb_get_window_attributes_reply(connection_, cookie, nullptr));
        return reply && reply->map_state != XCB_MAP_STATE_UNMAPPED;
    }

    QRect rootRect(xcb_window_t window) const { return xcbRootRect(connection_, window); }

    /// What the tray shows; null when it cannot be read.
    QImage picture() const {
        const auto cookie = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, 0, 0, width, height, ~0U);
        const XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection_, cookie, nullptr));
        return reply ? QImage(xcb_get_image_data(reply.get()), width, height, QImage::Format_RGB32).copy() : QImage();
    }

    /// Sends a mouse event; `at` is within `window`. `code` is XCB_BUTTON_PRESS, _RELEASE or XCB_MOTION_NOTIFY.
    void mouse(std::uint8_t code, xcb_window_t window, QPoint at, std::uint8_t button, int state = 0) {
        const QPoint root = rootRect(window).topLeft() + at;
        xcb_button_press_event_t event{};
        event.response_type = code;
        event.detail = button;
        event.root = screen_->root;
        event.event = window;
        event.root_x = static_cast<std::int16_t>(root.x());
        event.root_y = static_cast<std::int16_t>(root.y());
        event.event_x = static_cast<std::int16_t>(at.x());
        event.event_y = static_cast<std::int16_t>(at.y());
        event.state = static_cast<std::uint16_t>(state);
        send(window, XCB_EVENT_MASK_NO_EVENT, event);
    }

    bool welcoming = true;         ///< takes windows in as soon as they ask
    xcb_window_t asked = XCB_NONE; ///< asked to be taken in
    xcb_window_t icon = XCB_NONE;  ///< is in the tray
    QSize wanted;                  ///< the size that the window in the tray last asked for

  private:
    template<typename Event>
    void send(xcb_window_t to, std::uint32_t mask, const Event& event) {
        xcb_send_event(connection_, 0, to, mask, reinterpret_cast<const char*>(&event));
        xcb_flush(connection_);
    }

    void resizeIcon(QSize size) {
        wanted = size;
        granted_ = grant_(wanted);
        const int values[] = {granted_.width(), granted_.height()};
        xcb_configure_window(connection_, icon, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values);
    }

    /// The hints' sixth and seventh numbers are the least size.
    void readHints() {
        const auto hints = xcbValues(connection_, icon, XCB_ATOM_WM_NORMAL_HINTS);
        const QSize least = hints.size() > 6 ? QSize(static_cast<int>(hints[5]), static_cast<int>(hints[6])) : QSize();
        if (!least.isEmpty() && least != wanted)
            resizeIcon(least);
    }

    void handle(const xcb_generic_event_t& event) {
        const int type = event.response_type & 0x7f;
        if (type == XCB_CLIENT_MESSAGE) {
            const auto& told = reinterpret_cast<const xcb_client_message_event_t&>(event);
            if (told.type != xcbAtom(connection_, "_NET_SYSTEM_TRAY_OPCODE") || told.data.data32[1] != 0)
                return;
            asked = told.data.data32[2];
            if (welcoming)
                takeIn();
        } else if (type == XCB_PROPERTY_NOTIFY) {
            if (reinterpret_cast<const xcb_property_notify_event_t&>(event).atom == XCB_ATOM_WM_NORMAL_HINTS)
                readHints();
        } else if (type == XCB_CONFIGURE_NOTIFY) {
            const auto& now = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
            if (now.window == icon && QSize(now.width, now.height) != granted_)
                resizeIcon(wanted);
        } else if (type == XCB_DESTROY_NOTIFY) {
            if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == icon)
                icon = XCB_NONE;
        }
    }

    static constexpr std::uint16_t width = 600;
    static constexpr std::uint16_t height = 30;

    Grant grant_;
    xcb_connection_t* connection_ = xcb_connect(nullptr, nullptr);
    xcb_screen_t* screen_ = xcbScreen(connection_);
    xcb_window_t window_ = XCB_NONE;
    QSize granted_;
};

/// Lets program and tray work until the condition holds; false when it does not in time.
template<typename Condition>
bool becomes(FakeTray& tray, Condition condition, std::chrono::milliseconds patience = std::chrono::seconds(20)) {
    QCoreApplication::processEvents(); // what the program asks for goes out before the tray acts
    return spinUntil(
        [&] {
            tray.pump();
            return condition();
        },
        patience);
}

/// True when some pixel is `color`, but for the softness of small type.
inline bool shows(const QImage& picture, const QColor& color, int tolerance = 40) {
    const auto isNear = [&](int part, int wanted) { return std::abs(part - wanted) <= tolerance; };
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (isNear(qRed(pixel), color.red()) && isNear(qGreen(pixel), color.green()) &&
                isNear(qBlue(pixel), color.blue()))
                return true;
        }
    return false;
}

} // namespace vantrix::fakes
