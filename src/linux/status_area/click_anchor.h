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

/// The part of a panel around `point`, as thick as the panel where the screen says how thick that is. Absent when the
/// point is on no screen.
std::optional<QRect> panelRectAt(QPoint point);

/// `item`, as thick as `panel`, which it lies in; unchanged where that is too thick for a panel.
QRect acrossPanel(QRect item, const QRect& panel);

/// True when a point that a host sent can be a click on a panel: it lies near the edge of a screen.
bool isOnScreenEdge(QPoint point);

/// A guess at where the status area is: the right end of the primary screen's panel, else that screen's top right
/// corner. `width` is the item's own.
QRect panelCorner(int width);

} // namespace vantrix
