#include "views/shapes.h"

#include <algorithm>

#include <QPainter>
#include <QWidget>

#include "views/theme.h"

namespace vantrix {
namespace {

// Where a corner's curve begins and where its handles lie, in radii from the corner. Together they keep the middle of
// the curve where the circle's is.
constexpr double begin = 1.35;
constexpr double handle = 0.331;

} // namespace

QPainterPath continuousRect(const QRectF& rect, double radius) {
    const double room = std::min(rect.width(), rect.height()) / 2.0;
    QPainterPath path;
    if (radius * begin > room) { // too small for a soft bend
        path.addRoundedRect(rect, std::min(radius, room), std::min(radius, room));
        return path;
    }
    const double b = radius * begin;
    const double h = radius * handle;
    const double left = rect.left();
    const double right = rect.right();
    const double top = rect.top();
    const double bottom = rect.bottom();
    path.moveTo(left + b, top);
    path.lineTo(right - b, top);
    path.cubicTo(right - h, top, right, top + h, right, top + b);
    path.lineTo(right, bottom - b);
    path.cubicTo(right, bottom - h, right - h, bottom, right - b, bottom);
    path.lineTo(left + b, bottom);
    path.cubicTo(left + h, bottom, left, bottom - h, left, bottom - b);
    path.lineTo(left, top + b);
    path.cubicTo(left, top + h, left + h, top, left + b, top);
    path.closeSubpath();
    return path;
}

void paintOutline(QPainter& painter, const QWidget& widget, const Theme& theme, const QRectF& rect, double radius) {
    const ThemeColors& colors = theme.colors();
    if (!colors.areHighContrast())
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(widget.isEnabled() ? colors.outline : colors.disabled, 1.0));
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

QRectF mirrored(const QWidget& widget, const QRectF& rect) {
    if (widget.layoutDirection() != Qt::RightToLeft)
        return rect;
    return {widget.width() - rect.right(), rect.y(), rect.width(), rect.height()};
}

} // namespace vantrix
