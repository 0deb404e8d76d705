#pragma once

#include <span>

#include <QColor>
#include <QImage>
#include <QSize>

namespace vantrix {

/// A filled curve in a rounded box, computed pixel by pixel. The toolkit's own path filling hands shapes of this size
/// to a pool of threads and wakes them for every picture, which costs more than the drawing.
struct HistoryGraph {
    QSize pixels;
    double cornerRadius = 0.0; ///< pixels
    QColor background;
    QColor fill;
    std::span<const double> values; ///< oldest first, spread over the whole width; 0 to 1, clamped
    double fraction = 0.0;          ///< drawn as a bar of this height where there are fewer than two values

    QImage image() const;
};

} // namespace vantrix
