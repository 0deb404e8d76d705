#pragma once

#include <string_view>

#include <QColor>
#include <QImage>
#include <QRectF>

class QPainter;

namespace vantrix {

/// Draws the symbol of that name, the system's where it has one, else that of resources/symbols/, in `color`, fitted
/// into `rect` with its proportions kept. An unknown name draws nothing.
void paintSymbol(QPainter& painter, std::string_view name, const QRectF& rect, const QColor& color);

/// How large the system's type is that a symbol goes with in a square of that side.
double symbolTextSize(double side);

/// Where a symbol whose drawing is that large goes in a square of that side: in the middle, as it is, smaller only
/// where it would not fit.
QRectF symbolPlace(const QSizeF& natural, double side);

/// The program's own drawing of the symbol, that of resources/symbols/, in black, else as systemSymbol() gives it;
/// empty where no drawing has that name.
QImage ownSymbol(std::string_view name, int side);

/// The symbol in a square of `side` pixels, on a transparent ground.
QImage symbolImage(std::string_view name, const QColor& color, int side);

} // namespace vantrix
