#include "popover/popover_place.h"

#include <algorithm>
#include <cmath>

namespace vantrix {
namespace {

constexpr int screenMargin = 30;
constexpr int leastHeight = 480;
constexpr int heightWithoutScreen = 870;
constexpr int gap = 8; // to the status item, its panel and the edges of the screen
constexpr int highestPanel = 96;
constexpr int panelMargin = 8; // around items in a panel; a strip on the desktop is further from the edge

/// How far `point` is outside `rect`; 0 inside.
int distance(const QPoint& point, const QRect& rect) {
    const int x = std::max({rect.left() - point.x(), point.x() - rect.right(), 0});
    const int y = std::max({rect.top() - point.y(), point.y() - rect.bottom(), 0});
    return x + y;
}

/// Moves `place` to the first of two corners where it is inside `area`; false where it is at neither.
bool choose(QRect& place, const QPoint& first, const QPoint& second, const QRect& area) {
    for (const QPoint& corner : {first, second}) {
        place.moveTopLeft(corner);
        if (area.contains(place))
            return true;
    }
    return false;
}

/// `start`, moved so that `length` points lie between `low` and `high`; `low` where they do not fit.
int kept(int start, int length, int low, int high) {
    return std::max(std::min(start, high + 1 - length), low);
}

} // namespace

int popoverHeight(double visibleHeight) {
    if (visibleHeight <= 0.0)
        return heightWithoutScreen;
    return std::max(static_cast<int>(std::lround(visibleHeight)) - screenMargin, leastHeight);
}

int popoverHeight(double visibleHeight, int contentHeight) {
    return std::clamp(contentHeight, leastHeight, popoverHeight(visibleHeight));
}

std::size_t screenOf(const QRect& anchor, const std::vector<QRect>& screens) {
    const auto nearest = std::min_element(screens.begin(), screens.end(), [&](const QRect& a, const QRect& b) {
        return distance(anchor.center(), a) < distance(anchor.center(), b);
    });
    return static_cast<std::size_t>(nearest - screens.begin());
}

QRect popoverPlace(const QSize& size, const QRect& anchor, const QRect& visible) {
    const QRect area = visible.adjusted(gap, gap, -gap, -gap);
    const int centredX = kept(anchor.center().x() - size.width() / 2, size.width(), area.left(), area.right());
    const int besideY = kept(anchor.top(), size.height(), area.top(), area.bottom());
    // An item is often thinner than the panel it lies in, whose edge then decides.
    const QPoint below(centredX, std::max(anchor.bottom() + 1 + gap, area.top()));
    const QPoint above(centredX, std::min(anchor.top() - gap, area.bottom() + 1) - size.height());
    const QPoint right(std::max(anchor.right() + 1 + gap, area.left()), besideY);
    const QPoint left(std::min(anchor.left() - gap, area.right() + 1) - size.width(), besideY);
    const bool inSidePanel = anchor.right() < visible.left() || anchor.left() > visible.right();
    QRect place(QPoint(), size);
    if (!inSidePanel && choose(place, below, above, area))
        return place;
    // Some systems count the panel as visible area: the space that it leaves is then a little too short.
    const int roomBelow = area.bottom() + 1 - below.y();
    const int roomAbove = std::min(anchor.top() - gap, area.bottom() + 1) - area.top();
    const int room = std::max(roomBelow, roomAbove);
    const bool inPanel = anchor.top() - visible.top() < panelMargin || visible.bottom() - anchor.bottom() < panelMargin;
    if (!inSidePanel && inPanel && room >= std::max(size.height() - highestPanel, leastHeight))
        return {QPoint(centredX, roomBelow >= roomAbove ? below.y() : area.top()), QSize(size.width(), room)};
    if (choose(place, right, left, area))
        return place;
    return {QPoint(centredX, kept(below.y(), size.height(), area.top(), area.bottom())), size};
}

QRect resizedPlace(const QRect& place, int height, const QRect& anchor, const QRect& visible) {
    const QRect area = visible.adjusted(gap, gap, -gap, -gap);
    const bool isBelow = place.top() > anchor.bottom();
    const bool isAbove = place.bottom() < anchor.top();
    const int room = isBelow   ? area.bottom() + 1 - place.top()
                     : isAbove ? place.bottom() + 1 - area.top()
                               : area.height();
    QRect resized = place;
    resized.setHeight(std::min(height, std::max(room, place.height())));
    if (isAbove)
        resized.moveBottom(place.bottom());
    else if (!isBelow)
        resized.moveTop(kept(anchor.top(), resized.height(), area.top(), area.bottom()));
    return resized;
}

} // namespace vantrix
