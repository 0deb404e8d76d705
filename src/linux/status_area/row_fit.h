#pragma once

#include <algorithm>
#include <optional>

#include <QRectF>
#include <QTransform>

#include "linux/status_area/status_row.h"

namespace vantrix {

/// How the row is drawn where there may be less room than it wants.
struct RowFit {
    StatusRow row;
    double scale = 1.0;

    /// The width that it takes, in points.
    double width() const { return row.size().width() * scale; }

    /// The same, scaled down further where it is wider than that.
    RowFit narrowedTo(double most) const { return {row, std::min(scale, most / row.size().width())}; }

    /// From the row's own points to those of the window, where it stands in the middle of `slot`; whole device pixels,
    /// of which there are so many a point, keep it sharp.
    QTransform place(const QRectF& slot, double pixels) const;
};

/// The row as it can be read in a slot of `size` points, on a screen with `pixels` device pixels a point: as it is, or
/// scaled down, or with its values beside their captions, which is less high. Absent where all of them would be too
/// small to read, or lose a part at the sides.
std::optional<RowFit> fitRow(const StatusRow& row, QSizeF size, double pixels);

/// The same where the slot is as wide as the row wants.
std::optional<RowFit> fitRowInHeight(const StatusRow& row, double height, double pixels);

} // namespace vantrix
