#include "settings/controls/drawing.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QTextBoundaryFinder>
#include <QWidget>

#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {

QColor textColor(const QWidget& control, const Theme& theme) {
    return control.isEnabled() ? theme.colors().label : theme.colors().disabled;
}

void paintButtonGround(QPainter& painter, const QWidget& control, const Theme& theme, const QRectF& rect, bool down) {
    const double radius = theme.scaled(6.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(control.isEnabled() ? theme.colors().control : theme.colors().card);
    painter.drawRoundedRect(rect, radius, radius);
    if (down || (control.underMouse() && control.isEnabled())) {
        painter.setBrush(withAlpha(theme.colors().label, down ? 0.14 : 0.05));
        painter.drawRoundedRect(rect, radius, radius);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme.colors().separator, 1.0));
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    paintOutline(painter, control, theme, rect, radius);
}

void paintKnob(QPainter& painter, const QRectF& rect, bool enabled) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 26));
    painter.drawEllipse(rect.adjusted(-0.5, 0.0, 0.5, 1.5));
    painter.setPen(QPen(QColor(0, 0, 0, 36), 0.5));
    painter.setBrush(QColor(255, 255, 255, enabled ? 255 : 150));
    painter.drawEllipse(rect);
}

double widestWord(const QFont& font, const QString& text) {
    const QFontMetricsF metrics(font);
    double widest = 0.0;
    QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, text); // some languages have no blanks
    for (qsizetype start = 0, end = breaks.toNextBoundary(); end > start; start = end, end = breaks.toNextBoundary())
        widest = std::max(widest, metrics.horizontalAdvance(text.mid(start, end - start).trimmed()));
    return std::ceil(widest) + 1.0;
}

QFont fittingFont(const Theme& theme, const QString& text, QFont::Weight weight, double room) {
    constexpr double leastPoints = 5.0;
    double points = bodyPoints;
    while (points > leastPoints && QFontMetricsF(theme.font(points, weight)).horizontalAdvance(text) > room)
        points -= 0.5;
    return theme.font(points, weight);
}

} // namespace vantrix
