#pragma once

#include <QPainterPath>
#include <QRectF>

class QPainter;
class QWidget;

namespace vantrix {

class Theme;

/// A rounded rectangle whose corners begin to bend early and softly. `radius` is that of the circle they come closest
/// to.
QPainterPath continuousRect(const QRectF& rect, double radius);

/// The edge of a card or a control where the desktop asks for high contrast, else nothing: just inside `rect`, whose
/// corners have that radius, all in points. Fainter while `widget` is disabled.
void paintOutline(QPainter& painter, const QWidget& widget, const Theme& theme, const QRectF& rect, double radius);

/// `rect` mirrored within `widget` where its language runs from right to left.
QRectF mirrored(const QWidget& widget, const QRectF& rect);

} // namespace vantrix
