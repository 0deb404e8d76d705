#include "popover/charts/segmented_bar.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int barHeight = 8;
constexpr double trackRadius = 4.0;
constexpr double segmentRadius = 3.0;
constexpr double spacing = 2.0;

} // namespace

SegmentedBar::SegmentedBar(const Theme& theme, const QString& name) : View(theme) {
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SegmentedBar::setSegments(const std::vector<Segment>& segments) {
    if (segments == segments_)
        return;
    segments_ = segments;
    update();
    announceChange();
}

std::vector<QRectF> SegmentedBar::places(double width) const {
    std::vector<QRectF> places;
    double x = 0.0;
    for (const Segment& segment : segments_) {
        const double length = std::max(width * std::min(segment.fraction, 1.0) - spacing, 0.0);
        places.emplace_back(x, 0.0, length, barHeight);
        x += length + spacing;
    }
    return places;
}

std::optional<double> SegmentedBar::accessibleFraction() const {
    double sum = 0.0;
    for (const Segment& segment : segments_)
        sum += segment.fraction;
    return std::clamp(sum, 0.0, 1.0);
}

QSize SegmentedBar::sizeHint() const {
    return {60, barHeight};
}

void SegmentedBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRect(rect(), trackRadius), theme().colors().quaternary);
    const std::vector<QRectF> rects = places(width());
    for (std::size_t i = 0; i < segments_.size(); ++i) {
        if (rects[i].isEmpty())
            continue;
        const QRectF place = mirrored(*this, rects[i]);
        painter.fillPath(continuousRect(place, segmentRadius), theme().colors().*segments_[i].color);
    }
}

} // namespace vantrix
