#pragma once

#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QRect>

#include <xcb/xcb.h>

namespace vantrix {

struct FreeXcbReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply or event of libxcb, which the caller owns.
template<typename T>
using XcbReply = std::unique_ptr<T, FreeXcbReply>;

/// Qt's connection to the X server; null on other platforms.
xcb_connection_t* xcbConnection();

/// The default screen of Qt's connection.
xcb_screen_t* xcbScreen(xcb_connection_t* connection);

xcb_atom_t xcbAtom(xcb_connection_t* connection, const QByteArray& name);

/// The 32-bit values of a property; empty when it is missing or of another format.
std::vector<std::uint32_t> xcbValues(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property);

/// The window's place on the root window, in device pixels; empty when it is gone.
QRect xcbRootRect(xcb_connection_t* connection, xcb_window_t window);

/// The windows within it, but not those within these.
std::vector<xcb_window_t> xcbChildren(xcb_connection_t* connection, xcb_window_t window);

/// The outermost of the windows seen at a point of the root window; none where nothing covers that.
xcb_window_t xcbTopWindowAt(xcb_connection_t* connection, QPoint point);

/// The windows around it, from its parent up to, but without, the root window. Empty when it is gone.
std::vector<xcb_window_t> xcbAncestors(xcb_connection_t* connection, xcb_window_t window);

/// The part of the window that `ancestors`, its own, and the root window leave of it, in its own device pixels; empty
/// when nothing is left, or one of them is gone.
QRect xcbVisibleRect(xcb_connection_t* connection, xcb_window_t window, const std::vector<xcb_window_t>& ancestors);

/// Clears the window to its parent's background and returns what the screen then shows there; null when that cannot be
/// read.
QImage xcbParentBackground(xcb_connection_t* connection, xcb_window_t window, QSize size);

/// Fills a window with one pixel value, which means what the window's visual makes of it.
void xcbFill(xcb_connection_t* connection, xcb_window_t window, std::uint32_t pixel);

/// A look at what the screen shows in a rectangle of the root window, in device pixels. The answer is on its way until
/// it is asked for.
class XcbScreenLook {
  public:
    XcbScreenLook(xcb_connection_t* connection, const QRect& rect);
    ~XcbScreenLook();
    XcbScreenLook(const XcbScreenLook&) = delete;
    XcbScreenLook& operator=(const XcbScreenLook&) = delete;

    /// The usual colour there; absent when that cannot be read. To be asked once.
    std::optional<QColor> color();

  private:
    xcb_connection_t* connection_;
    QSize size_;
    std::optional<xcb_get_image_cookie_t> asked_;
};

/// The usual colour of what the screen shows in `rect`, as above, waited for.
std::optional<QColor> xcbScreenColor(xcb_connection_t* connection, const QRect& rect);

/// Makes window managers treat a window as a dock: on every desktop, above all windows but those that fill the screen,
/// without an entry in task bars. To be called before the window is shown.
void xcbMakeDock(xcb_connection_t* connection, xcb_window_t window);

/// Leaves a window out of task bars and lists of windows. To be called before the window is shown.
void xcbLeaveOutOfLists(xcb_connection_t* connection, xcb_window_t window);

/// True while any button of the mouse is held down.
bool xcbIsMousePressed(xcb_connection_t* connection);

/// True when windows with an alpha channel are blended with what is behind them.
bool xcbComposited(xcb_connection_t* connection);

} // namespace vantrix
