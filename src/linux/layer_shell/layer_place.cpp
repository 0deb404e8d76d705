#include "linux/layer_shell/layer_place.h"

#include <algorithm>

namespace vantrix {
namespace {

constexpr int gap = 8; // to panels, of which some float as far from the space that they reserve, and to edges
constexpr int thickestPanel = 96;

/// One direction of the screen, in which a point lies `before` the nearer of two edges.
struct Span {
    bool nearStart;
    int before;
    int free;
    int reserved; ///< by panels
};

Span span(int at, int whole, int free) {
    const int behind = whole - 1 - at;
    return {at <= behind, std::max(std::min(at, behind), 0), free, whole - free > rounding ? whole - free : 0};
}

/// How far an item reaches out of the space that its panel reserves.
int beyondPanel(const Span& across) {
    return std::max(across.before + itemReach - across.reserved, 0);
}

bool isInSidePanel(const Span& x, const Span& y) {
    return x.reserved > 0 && (y.reserved == 0 || x.before < y.before);
}

/// `margin`, as long as that leaves the window room on the other side.
int kept(int margin, int least, int length, int free) {
    return std::max(std::min(margin, free - gap - length), std::min(least, free - length));
}

} // namespace

LayerPlace layerPlace(const QSize& size, const QPoint& point, const QSize& screen, const QSize& free) {
    const Span x = span(point.x(), screen.width(), free.width());
    const Span y = span(point.y(), screen.height(), free.height());
    const bool inSidePanel = isInSidePanel(x, y);
    const int fromSide =
        inSidePanel ? gap + beyondPanel(x) : kept(x.before - size.width() / 2, gap, size.width(), x.free);
    const int fromTop = inSidePanel ? kept(y.before - itemReach, gap, size.height(), y.free)
                                    : kept(gap + beyondPanel(y), gap, size.height(), y.free);
    LayerPlace place;
    place.edges = (x.nearStart ? Qt::LeftEdge : Qt::RightEdge) | (y.nearStart ? Qt::TopEdge : Qt::BottomEdge);
    place.margins = {x.nearStart ? fromSide : 0, y.nearStart ? fromTop : 0, x.nearStart ? 0 : fromSide,
                     y.nearStart ? 0 : fromTop};
    return place;
}

int heightBeside(const QPoint& point, const QSize& screen, const QSize& free) {
    const Span x = span(point.x(), screen.width(), free.width());
    const Span y = span(point.y(), screen.height(), free.height());
    return free.height() - (isInSidePanel(x, y) ? 0 : beyondPanel(y));
}

bool isNearEdge(const QPoint& point, const QSize& screen) {
    return std::min(span(point.x(), screen.width(), 0).before, span(point.y(), screen.height(), 0).before) <
           thickestPanel;
}

} // namespace vantrix
