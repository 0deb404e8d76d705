#pragma once

#include <string_view>

#include <QColor>
#include <QImage>
#include <QRectF>

class QPainter;

namespace vantrix {

/// Draws the symbol of that name (see resources/symbols/) in `color`, fitted into `rect` with its proportions kept.
/// An unknown name draws nothing.
void paintSymbol(QPainter& painter, std::string_view name, const QRectF& rect, const QColor& color);

/// The symbol in a square of `side` pixels, on a transparent ground.
QImage symbolImage(std::string_view name, const QColor& color, int side);

} // namespace vantrix
