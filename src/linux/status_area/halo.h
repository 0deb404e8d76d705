#pragma once

#include <QColor>
#include <QImage>

namespace vantrix {

/// `glyphs` with a soft halo of that colour around them, so that they can be read on any ground. `pixels` a point.
QImage withHalo(const QImage& glyphs, const QColor& color, int pixels);

} // namespace vantrix
