#pragma once

#include <QPainterPath>
#include <QRectF>

class QWidget;

namespace vantrix {

/// A rounded rectangle whose corners begin to bend early and softly, as on the best-drawn surfaces of today: the
/// curvature has no jump where the straight edge ends. `radius` is that of the circle it comes closest to.
QPainterPath continuousRect(const QRectF& rect, double radius);

/// `rect` mirrored within `widget` where its language runs from right to left.
QRectF mirrored(const QWidget& widget, const QRectF& rect);

} // namespace vantrix
