#include "linux/status_area/x11_picture.h"

#include "linux/status_area/xcb_support.h"

namespace vantrix {
namespace {

QImage::Format formatOf(std::uint8_t depth) {
    switch (depth) {
    case 15:
        return QImage::Format_RGB555;
    case 16:
        return QImage::Format_RGB16;
    case 30:
        return QImage::Format_RGB30;
    default: // 24 or 32 bits, of which the server takes what it needs
        return QImage::Format_ARGB32_Premultiplied;
    }
}

} // namespace

X11Picture::X11Picture(xcb_connection_t* connection, std::uint32_t window) : connection_(connection), window_(window) {
    const XcbReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window_), nullptr));
    if (geometry)
        depth_ = geometry->depth;
}

X11Picture::~X11Picture() {
    drop();
}

void X11Picture::show(const QImage& image, const std::vector<QRect>& parts) {
    if (parts.empty())
        return;
    if (pixmap_ == XCB_NONE || size_ != image.size()) {
        drop();
        size_ = image.size();
        pixmap_ = xcb_generate_id(connection_);
        context_ = xcb_generate_id(connection_);
        xcb_create_pixmap(connection_, depth_, pixmap_, window_, static_cast<std::uint16_t>(size_.width()),
                          static_cast<std::uint16_t>(size_.height()));
        xcb_create_gc(connection_, context_, pixmap_, 0, nullptr);
    }
    for (const QRect& part : parts)
        put(image, part);
    // Told anew each time: what a server makes of changes to a background that it has is its own affair.
    xcb_change_window_attributes(connection_, window_, XCB_CW_BACK_PIXMAP, &pixmap_);
    for (const QRect& part : parts)
        xcb_clear_area(connection_, 0, window_, static_cast<std::int16_t>(part.x()),
                       static_cast<std::int16_t>(part.y()), static_cast<std::uint16_t>(part.width()),
                       static_cast<std::uint16_t>(part.height()));
    xcb_flush(connection_);
}

void X11Picture::put(const QImage& image, const QRect& part) {
    const QImage sent = image.copy(part).convertToFormat(formatOf(depth_));
    xcb_put_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap_, context_, static_cast<std::uint16_t>(sent.width()),
                  static_cast<std::uint16_t>(sent.height()), static_cast<std::int16_t>(part.x()),
                  static_cast<std::int16_t>(part.y()), 0, depth_, static_cast<std::uint32_t>(sent.sizeInBytes()),
                  sent.constBits());
}

void X11Picture::remove() {
    constexpr std::uint32_t parents = XCB_BACK_PIXMAP_PARENT_RELATIVE;
    xcb_change_window_attributes(connection_, window_, XCB_CW_BACK_PIXMAP, &parents);
    drop();
}

/// The server keeps what a window needs.
void X11Picture::drop() {
    if (pixmap_ == XCB_NONE)
        return;
    xcb_free_gc(connection_, context_);
    xcb_free_pixmap(connection_, pixmap_);
    pixmap_ = XCB_NONE;
}

} // namespace vantrix
