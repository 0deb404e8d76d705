#pragma once

#include <QPainterPath>
#include <QRectF>

class QWidget;

namespace vantrix {

/// A rounded rectangle whose corners begin to bend early and softly. `radius` is that of the circle they come closest
/// to.
QPainterPath continuousRect(const QRectF& rect, double radius);

/// `rect` mirrored within `widget` where its language runs from right to left.
QRectF mirrored(const QWidget& widget, const QRectF& rect);

} // namespace vantrix
