#pragma once

#include <cstddef>
#include <vector>

#include <QRect>

namespace vantrix {

/// How tall the popover is on a screen whose visible area is `visibleHeight` points tall; 0: no screen.
int popoverHeight(double visibleHeight);

/// Index of the screen that `anchor` is on, or the nearest one. `screens` is not empty.
std::size_t screenOf(const QRect& anchor, const std::vector<QRect>& screens);

/// Where a popover of `size` opens: below `anchor` where it fits, else above it, centred on it, else beside it. A
/// little shorter where a panel takes some of the space. Wholly inside `visible` wherever that is large enough. Always
/// beside an item that lies in a panel on the left or right.
QRect popoverPlace(const QSize& size, const QRect& anchor, const QRect& visible);

} // namespace vantrix
