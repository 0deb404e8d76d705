#include "menubar/history_graph.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantrix {
namespace {

constexpr int samplesPerPixel = 4; // horizontally, for steep slopes; vertically the coverage is exact

/// The curve above one column of pixels.
struct ColumnHeights {
    std::array<double, samplesPerPixel> samples{};
    double lowest = 0.0;
    double highest = 0.0;
};

/// The curve's height at `x` (0 to 1 of the width), 0 to 1.
double heightAt(const HistoryGraph& graph, double x) {
    if (graph.values.size() < 2)
        return std::clamp(graph.fraction, 0.0, 1.0);
    const double place = x * static_cast<double>(graph.values.size() - 1);
    const auto left = std::min(static_cast<std::size_t>(place), graph.values.size() - 2);
    const double before = std::clamp(graph.values[left], 0.0, 1.0);
    const double after = std::clamp(graph.values[left + 1], 0.0, 1.0);
    return before + (after - before) * (place - static_cast<double>(left));
}

ColumnHeights columnHeights(const HistoryGraph& graph, int column) {
    ColumnHeights heights;
    for (int i = 0; i < samplesPerPixel; ++i) {
        const double x = (column + (i + 0.5) / samplesPerPixel) / graph.pixels.width();
        heights.samples[static_cast<std::size_t>(i)] = heightAt(graph, x) * graph.pixels.height();
    }
    const auto [lowest, highest] = std::minmax_element(heights.samples.begin(), heights.samples.end());
    heights.lowest = *lowest;
    heights.highest = *highest;
    return heights;
}

/// The share of the pixel whose lower edge is `bottom` pixels up that lies below the curve.
double coverage(const ColumnHeights& heights, double bottom) {
    if (heights.highest <= bottom)
        return 0.0;
    if (heights.lowest >= bottom + 1.0)
        return 1.0;
    double sum = 0.0;
    for (double height : heights.samples)
        sum += std::clamp(height - bottom, 0.0, 1.0);
    return sum / samplesPerPixel;
}

/// The share of the pixel that the rounded box covers.
double boxCoverage(const HistoryGraph& graph, int x, int y) {
    const double radius = graph.cornerRadius;
    const double centreX = x + 0.5;
    const double centreY = y + 0.5;
    const double dx = std::max({radius - centreX, centreX - (graph.pixels.width() - radius), 0.0});
    const double dy = std::max({radius - centreY, centreY - (graph.pixels.height() - radius), 0.0});
    if (dx <= 0.0 || dy <= 0.0)
        return 1.0;
    return std::clamp(radius + 0.5 - std::hypot(dx, dy), 0.0, 1.0);
}

/// `fill`, covering a share of the pixel, over `background`; both within a share of the pixel.
QRgb blended(const QColor& fill, const QColor& background, double fillShare, double boxShare) {
    const double fillAlpha = fill.alphaF() * fillShare;
    const double backAlpha = background.alphaF() * (1.0 - fillAlpha);
    const auto channel = [&](double of, double under) {
        return static_cast<int>(std::lround((of * fillAlpha + under * backAlpha) * boxShare));
    };
    return qRgba(channel(fill.red(), background.red()), channel(fill.green(), background.green()),
                 channel(fill.blue(), background.blue()), channel(255, 255));
}

} // namespace

QImage HistoryGraph::image() const {
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    const QRgb full = blended(fill, background, 1.0, 1.0);
    const QRgb empty = blended(fill, background, 0.0, 1.0);
    auto* bits = reinterpret_cast<QRgb*>(image.bits());
    const auto stride = static_cast<std::ptrdiff_t>(image.bytesPerLine()) / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    for (int x = 0; x < pixels.width(); ++x) {
        const ColumnHeights heights = columnHeights(*this, x);
        for (int y = 0; y < pixels.height(); ++y) {
            const double share = coverage(heights, pixels.height() - 1 - y);
            const double box = boxCoverage(*this, x, y);
            QRgb& pixel = bits[y * stride + x];
            if (box >= 1.0 && (share <= 0.0 || share >= 1.0))
                pixel = share > 0.0 ? full : empty;
            else
                pixel = blended(fill, background, share, box);
        }
    }
    return image;
}

} // namespace vantrix
