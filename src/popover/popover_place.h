#pragma once

#include <cstddef>
#include <vector>

#include <QRect>

namespace vantrix {

/// How tall the popover is on a screen whose visible area is `visibleHeight` points tall; 0: no screen.
int popoverHeight(double visibleHeight);

/// The same where the popover shrinks to a content `contentHeight` points tall: never useless, never taller than above.
int popoverHeight(double visibleHeight, int contentHeight);

/// Index of the screen that `anchor` is on, or the nearest one. `screens` is not empty.
std::size_t screenOf(const QRect& anchor, const std::vector<QRect>& screens);

/// Where a popover of `size` opens: below `anchor` where it fits, else above it, centred on it, else beside it; 8
/// points from `anchor` and the edges of `visible`. A little shorter where a panel takes some of the space. Wholly
/// inside `visible` wherever that is large enough. Always beside an item that lies in a panel on the left or right.
QRect popoverPlace(const QSize& size, const QRect& anchor, const QRect& visible);

/// Where a popover that stands at `place` goes when it gets another height: it stays on its side of `anchor` and beside
/// it, and is lower than asked where that side has too little room.
QRect resizedPlace(const QRect& place, int height, const QRect& anchor, const QRect& visible);

} // namespace vantrix
