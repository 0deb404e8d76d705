#pragma once

#include <optional>

#include <QPoint>
#include <QRect>

class QScreen;

namespace vantrix {

/// `point` in device pixels of the X11 root window, as device-independent pixels.
QPoint fromNativePoint(QPoint point);

/// Same for a rectangle.
QRect fromNativeRect(QRect rect);

/// The stretch of panel around `point`, as thick as the panel itself where the screen tells how thick that is.
/// Absent where no screen has the point.
std::optional<QRect> panelRectAt(QPoint point);

/// True when a point told by a host can be a click on a panel: it lies on the edge of a screen.
bool isOnScreenEdge(QPoint point);

/// Where a panel keeps its status area when nothing better is known: the far end of the panel that the primary screen
/// has, else the screen's top right corner. `width` is the item's own.
QRect panelCorner(int width);

} // namespace vantrix
