#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;
class QWidget;

namespace vantrix {

class Theme;

/// The size of the texts in controls and rows, in points at the usual text size.
inline constexpr double bodyPoints = 13.0;

/// The colour of a control's text or mark.
QColor textColor(const QWidget& control, const Theme& theme);

/// The background of a button or a field, with its hairline edge; darker while it is held down.
void paintButtonGround(QPainter& painter, const QWidget& control, const Theme& theme, const QRectF& rect, bool down);

/// The round knob of a switch or a slider.
void paintKnob(QPainter& painter, const QRectF& rect, bool enabled);

/// The width of the widest part of `text` that cannot be broken: no line can be narrower.
double widestWord(const QFont& font, const QString& text);

/// The font of a control's text on one line; smaller where `room` is too narrow for the usual size.
QFont fittingFont(const Theme& theme, const QString& text, QFont::Weight weight, double room);

} // namespace vantrix
