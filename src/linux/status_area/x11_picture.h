#pragma once

#include <cstdint>
#include <vector>

#include <QImage>
#include <QRect>

struct xcb_connection_t;

namespace vantrix {

/// A picture that is the background of an X11 window: the server puts it back by itself wherever the window comes to
/// light, and a change is sent without an answer that would have to be waited for.
class X11Picture {
  public:
    X11Picture(xcb_connection_t* connection, std::uint32_t window);
    ~X11Picture();
    X11Picture(const X11Picture&) = delete;
    X11Picture& operator=(const X11Picture&) = delete;

    /// Shows `image`, of the window's size in pixels, of which these parts differ from what was shown last.
    void show(const QImage& image, const std::vector<QRect>& parts);

    /// The window, which has its parent's visual, has its background as well until the next `show`, which is to be of
    /// everything.
    void remove();

  private:
    void drop();
    void put(const QImage& image, const QRect& part);

    xcb_connection_t* connection_;
    std::uint32_t window_;
    std::uint8_t depth_ = 24;
    std::uint32_t pixmap_ = 0; ///< 0 while there is none
    std::uint32_t context_ = 0;
    QSize size_;
};

} // namespace vantrix
