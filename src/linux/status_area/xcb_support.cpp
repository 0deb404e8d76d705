#include "linux/status_area/xcb_support.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QGuiApplication>
#include <QHash>

namespace vantrix {

xcb_connection_t* xcbConnection() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native != nullptr ? native->connection() : nullptr;
}

xcb_screen_t* xcbScreen(xcb_connection_t* connection) {
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
}

xcb_atom_t xcbAtom(xcb_connection_t* connection, const QByteArray& name) {
    static QHash<QByteArray, xcb_atom_t> known; // they stay as long as the server; the program has but one
    if (const auto found = known.constFind(name); found != known.cend())
        return *found;
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.constData());
    const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? *known.insert(name, reply->atom) : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::vector<std::uint32_t> xcbValues(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property) {
    constexpr std::uint32_t most = 64;
    const auto cookie = xcb_get_property(connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, most);
    xcb_generic_error_t* error = nullptr;
    const XcbReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, &error));
    const XcbReply<xcb_generic_error_t> ownedError(error);
    if (!reply || reply->format != 32)
        return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + xcb_get_property_value_length(reply.get()) / 4};
}

namespace {

/// The place of a window on the root window, asked for; several can be on their way at the same time.
class PlaceQuestion {
  public:
    PlaceQuestion(xcb_connection_t* connection, xcb_window_t window)
        : connection_(connection), geometry_(xcb_get_geometry(connection, window)),
          place_(xcb_translate_coordinates(connection, window, xcbScreen(connection)->root, 0, 0)) {}

    /// Empty where the window is gone. To be asked once.
    QRect answer() const {
        xcb_generic_error_t* error = nullptr;
        const XcbReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(connection_, geometry_, &error));
        const XcbReply<xcb_generic_error_t> geometryError(std::exchange(error, nullptr));
        const XcbReply<xcb_translate_coordinates_reply_t> place(
            xcb_translate_coordinates_reply(connection_, place_, &error));
        const XcbReply<xcb_generic_error_t> placeError(error);
        return geometry && place ? QRect(place->dst_x, place->dst_y, geometry->width, geometry->height) : QRect();
    }

  private:
    xcb_connection_t* connection_;
    xcb_get_geometry_cookie_t geometry_;
    xcb_translate_coordinates_cookie_t place_;
};

} // namespace

QRect xcbRootRect(xcb_connection_t* connection, xcb_window_t window) {
    return PlaceQuestion(connection, window).answer();
}

std::vector<xcb_window_t> xcbChildren(xcb_connection_t* connection, xcb_window_t window) {
    xcb_generic_error_t* error = nullptr;
    const XcbReply<xcb_query_tree_reply_t> reply(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, window), &error));
    const XcbReply<xcb_generic_error_t> ownedError(error);
    if (!reply)
        return {};
    const xcb_window_t* children = xcb_query_tree_children(reply.get());
    return {children, children + xcb_query_tree_children_length(reply.get())};
}

xcb_window_t xcbTopWindowAt(xcb_connection_t* connection, QPoint point) {
    const auto root = xcbScreen(connection)->root;
    const auto cookie = xcb_translate_coordinates(connection, root, root, static_cast<std::int16_t>(point.x()),
                                                  static_cast<std::int16_t>(point.y()));
    const XcbReply<xcb_translate_coordinates_reply_t> reply(
        xcb_translate_coordinates_reply(connection, cookie, nullptr));
    return reply ? reply->child : static_cast<xcb_window_t>(XCB_NONE);
}

std::vector<xcb_window_t> xcbAncestors(xcb_connection_t* connection, xcb_window_t window) {
    constexpr std::size_t most = 32; // no panel nests its windows deeper
    std::vector<xcb_window_t> ancestors;
    while (ancestors.size() < most) {
        const auto cookie = xcb_query_tree(connection, ancestors.empty() ? window : ancestors.back());
        xcb_generic_error_t* error = nullptr;
        const XcbReply<xcb_query_tree_reply_t> reply(xcb_query_tree_reply(connection, cookie, &error));
        const XcbReply<xcb_generic_error_t> ownedError(error);
        if (!reply)
            return {};
        if (reply->parent == reply->root || reply->parent == XCB_NONE)
            break;
        ancestors.push_back(reply->parent);
    }
    return ancestors;
}

QRect xcbVisibleRect(xcb_connection_t* connection, xcb_window_t window, const std::vector<xcb_window_t>& ancestors) {
    const PlaceQuestion self(connection, window);
    std::vector<PlaceQuestion> around{{connection, xcbScreen(connection)->root}};
    for (const xcb_window_t ancestor : ancestors)
        around.emplace_back(connection, ancestor);
    const QRect own = self.answer();
    QRect visible = own;
    for (const PlaceQuestion& question : around)
        visible &= question.answer();
    return visible.translated(-own.topLeft());
}

namespace {

xcb_get_image_cookie_t askForImage(xcb_connection_t* connection, xcb_window_t window, const QRect& rect) {
    return xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, static_cast<std::int16_t>(rect.x()),
                         static_cast<std::int16_t>(rect.y()), static_cast<std::uint16_t>(rect.width()),
                         static_cast<std::uint16_t>(rect.height()), ~0U);
}

/// What is shown in a part of that size of a window and of those within it; null when that cannot be read.
QImage answeredImage(xcb_connection_t* connection, xcb_get_image_cookie_t cookie, QSize size) {
    xcb_generic_error_t* error = nullptr;
    const XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(connection, cookie, &error));
    const XcbReply<xcb_generic_error_t> ownedError(error);
    const auto wanted = qsizetype{size.width()} * size.height() * 4;
    if (!reply || reply->depth < 24 || xcb_get_image_data_length(reply.get()) < wanted)
        return {};
    return QImage(xcb_get_image_data(reply.get()), size.width(), size.height(), QImage::Format_RGB32).copy();
}

void setAtoms(xcb_connection_t* connection, xcb_window_t window, const QByteArray& property,
              const std::vector<QByteArray>& names) {
    std::vector<xcb_atom_t> values;
    values.reserve(names.size());
    for (const QByteArray& name : names)
        values.push_back(xcbAtom(connection, name));
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, xcbAtom(connection, property), XCB_ATOM_ATOM, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
}

} // namespace

QImage xcbParentBackground(xcb_connection_t* connection, xcb_window_t window, QSize size) {
    xcb_clear_area(connection, 0, window, 0, 0, 0, 0);
    return answeredImage(connection, askForImage(connection, window, QRect(QPoint(0, 0), size)), size);
}

void xcbFill(xcb_connection_t* connection, xcb_window_t window, std::uint32_t pixel) {
    const xcb_gcontext_t context = xcb_generate_id(connection);
    const xcb_rectangle_t everything{0, 0, INT16_MAX, INT16_MAX};
    xcb_create_gc(connection, context, window, XCB_GC_FOREGROUND, &pixel);
    xcb_poly_fill_rectangle(connection, window, context, 1, &everything);
    xcb_free_gc(connection, context);
    xcb_flush(connection);
}

XcbScreenLook::XcbScreenLook(xcb_connection_t* connection, const QRect& rect)
    : connection_(connection), size_(rect.size()) {
    if (!rect.isEmpty())
        asked_ = askForImage(connection, xcbScreen(connection)->root, rect);
}

XcbScreenLook::~XcbScreenLook() {
    if (asked_)
        xcb_discard_reply(connection_, asked_->sequence);
}

std::optional<QColor> xcbScreenColor(xcb_connection_t* connection, const QRect& rect) {
    return XcbScreenLook(connection, rect).color();
}

std::optional<QColor> XcbScreenLook::color() {
    const auto asked = std::exchange(asked_, std::nullopt);
    const QImage image = asked ? answeredImage(connection_, *asked, size_) : QImage();
    if (image.isNull())
        return std::nullopt;
    // Of colours that look much the same, because a picture behind the panel may have each of its colours once.
    struct Likes {
        int pixels = 0;
        std::map<QRgb, int> colors;
    };
    const auto fewer = [](const auto& a, const auto& b) { return a.second < b.second; };
    constexpr QRgb coarse = 0xfff0f0f0;
    std::map<QRgb, Likes> likes;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            Likes& like = likes[pixel & coarse];
            ++like.pixels;
            ++like.colors[pixel];
        }
    const auto& colors = std::max_element(likes.begin(), likes.end(), [](const auto& a, const auto& b) {
                             return a.second.pixels < b.second.pixels;
                         })->second.colors;
    return QColor(std::max_element(colors.begin(), colors.end(), fewer)->first);
}

void xcbMakeDock(xcb_connection_t* connection, xcb_window_t window) {
    setAtoms(connection, window, "_NET_WM_WINDOW_TYPE", {"_NET_WM_WINDOW_TYPE_DOCK"});
    setAtoms(connection, window, "_NET_WM_STATE",
             {"_NET_WM_STATE_ABOVE", "_NET_WM_STATE_STICKY", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"});
}

void xcbLeaveOutOfLists(xcb_connection_t* connection, xcb_window_t window) {
    setAtoms(connection, window, "_NET_WM_STATE", {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"});
}

bool xcbIsMousePressed(xcb_connection_t* connection) {
    constexpr std::uint16_t buttons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;
    const auto cookie = xcb_query_pointer(connection, xcbScreen(connection)->root);
    const XcbReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(connection, cookie, nullptr));
    return reply && (reply->mask & buttons) != 0;
}

bool xcbComposited(xcb_connection_t* connection) {
    const auto cookie = xcb_get_selection_owner(connection, xcbAtom(connection, "_NET_WM_CM_S0"));
    const XcbReply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(connection, cookie, nullptr));
    return reply && reply->owner != XCB_NONE;
}

} // namespace vantrix
