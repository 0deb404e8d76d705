#include "linux/status_area/row_pixmaps.h"

#include <utility>

#include "linux/status_area/halo.h"

namespace vantrix {

const NotifierPixmaps& RowPixmaps::draw(const StatusRow& row, const MenuBarPalette& palette,
                                        const std::optional<QColor>& halo) {
    if (std::exchange(halo_, halo) != halo)
        pictures_ = {};
    pixmaps_.resize(static_cast<qsizetype>(pictures_.size()));
    for (std::size_t i = 0; i < pictures_.size(); ++i) {
        const int scale = static_cast<int>(i) + 1;
        const QSize size = row.size() * scale;
        const auto parts = row.draw(pictures_[i], palette, size, QTransform::fromScale(scale, scale));
        NotifierPixmap& pixmap = pixmaps_[static_cast<qsizetype>(i)];
        if (QSize(pixmap.width, pixmap.height) != size)
            pixmap = emptyNotifierPixmap(size);
        for (const QRect& part : parts) {
            // No further than half a gap between two items, it stays within the part.
            const QImage glyphs = pictures_[i].image().copy(part);
            putInto(pixmap, part.topLeft(), halo ? withHalo(glyphs, *halo, scale) : glyphs, premultiplied_);
        }
    }
    return pixmaps_;
}

} // namespace vantrix
