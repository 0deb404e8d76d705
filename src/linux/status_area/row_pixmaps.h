#pragma once

#include <array>
#include <optional>

#include <QColor>

#include "linux/status_area/notifier_types.h"
#include "linux/status_area/status_row.h"
#include "menubar/row_picture.h"

namespace vantrix {

/// The whole row as the pictures that a StatusNotifier host is sent, for screens of scale 1 and 2. They are kept: of
/// the next row only the items that look different are made anew.
class RowPixmaps {
  public:
    explicit RowPixmaps(bool premultiplied) : premultiplied_(premultiplied) {}

    /// Where there is a colour for it, the letters get a halo.
    const NotifierPixmaps& draw(const StatusRow& row, const MenuBarPalette& palette, const std::optional<QColor>& halo);

  private:
    bool premultiplied_;
    std::optional<QColor> halo_;
    std::array<RowPicture, 2> pictures_;
    NotifierPixmaps pixmaps_;
};

} // namespace vantrix
