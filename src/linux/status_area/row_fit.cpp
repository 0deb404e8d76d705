#include "linux/status_area/row_fit.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantrix {
namespace {

constexpr double smallestType = 7.0; // device pixels that can still be read
constexpr double leastShare = 0.9;   // of the width that it wants: a little less only makes it smaller

} // namespace

QTransform RowFit::place(const QRectF& slot, double pixels) const {
    const auto snapped = [&](double place) { return std::floor(place * pixels) / pixels; };
    const double x = snapped(slot.x() + (slot.width() - width()) / 2.0);
    const double y = snapped(slot.y() + (slot.height() - row.size().height() * scale) / 2.0);
    return QTransform::fromTranslate(x, y).scale(scale, scale);
}

std::optional<RowFit> fitRowInHeight(const StatusRow& row, double height, double pixels) {
    const auto readableScale = [&](const StatusRow& choice) {
        const double scale = std::min(1.0, height / choice.inkHeight());
        return choice.smallestType() * scale * pixels >= smallestType ? std::optional(scale) : std::nullopt;
    };
    if (const auto scale = readableScale(row))
        return RowFit{row, *scale};
    StatusRow inlined = row.inlined();
    if (const auto scale = readableScale(inlined))
        return RowFit{std::move(inlined), *scale};
    return std::nullopt;
}

std::optional<RowFit> fitRow(const StatusRow& row, QSizeF size, double pixels) {
    const auto fit = fitRowInHeight(row, size.height(), pixels);
    if (!fit || size.width() < fit->width() * leastShare)
        return std::nullopt;
    return fit->narrowedTo(size.width());
}

} // namespace vantrix
