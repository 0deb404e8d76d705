#pragma once

#include <cstddef>
#include <vector>

#include <QRect>

namespace vantrix {

/// How high the popover is on a screen whose visible area is `visibleHeight` points high; 0: no screen.
int popoverHeight(double visibleHeight);

/// Index of the screen that `anchor` is on, or else is nearest to. `screens` is not empty.
std::size_t screenOf(const QRect& anchor, const std::vector<QRect>& screens);

/// Where a popover of `size` opens, a little lower where a panel takes of the room: below `anchor` where it fits, else
/// above it, centred on it, else beside it. Wholly inside `visible` wherever that is large enough. Always beside an
/// item that lies in a panel on the left or right.
QRect popoverPlace(const QSize& size, const QRect& anchor, const QRect& visible);

} // namespace vantrix
