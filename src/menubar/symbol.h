#pragma once

#include <string_view>

#include <QColor>
#include <QImage>
#include <QRectF>

class QPainter;

namespace vantrix {

/// Draws the symbol with that name in `color`, as large as fits into `rect`: the system's where it has one, else the
/// one in resources/symbols/. An unknown name draws nothing.
void paintSymbol(QPainter& painter, std::string_view name, const QRectF& rect, const QColor& color);

/// The size of the system's text that a symbol in a square of that side goes with.
double symbolTextSize(double side);

/// Where a system symbol of that natural size goes in a square of that side: in the middle, made smaller only where it
/// would not fit.
QRectF symbolPlace(const QSizeF& natural, double side);

/// The program's own drawing of the symbol, from resources/symbols/, in black on a square of `side` pixels; transparent
/// where no drawing has that name.
QImage ownSymbol(std::string_view name, int side);

/// The symbol in a square of `side` pixels, on a transparent background.
QImage symbolImage(std::string_view name, const QColor& color, int side);

} // namespace vantrix
