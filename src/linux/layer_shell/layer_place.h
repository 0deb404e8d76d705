#pragma once

#include <QMargins>
#include <QPoint>
#include <QSize>

namespace vantrix {

/// By how much sizes that should be equal differ at fractional scales, at most.
inline constexpr int rounding = 2;

/// From the point where an item was clicked to its edge, about.
inline constexpr int itemReach = 11;

/// What a compositor is told of a window's place: the edges of the screen, less the panels', that it goes to, and how
/// far from them it stays, in device-independent pixels.
struct LayerPlace {
    Qt::Edges edges;
    QMargins margins;
};

/// Where a window of `size` goes beside the panel that has `point`, which is on a screen of the size `screen`. `free`
/// is the size of what its panels leave; which panel takes how much is not known.
LayerPlace layerPlace(const QSize& size, const QPoint& point, const QSize& screen, const QSize& free);

/// How much of the height of `free` is left where the window goes: a panel that reserves nothing is not hidden.
int heightBeside(const QPoint& point, const QSize& screen, const QSize& free);

/// True when `point` can be one on a panel, even if that reserves no space: it is near an edge.
bool isNearEdge(const QPoint& point, const QSize& screen);

} // namespace vantrix
