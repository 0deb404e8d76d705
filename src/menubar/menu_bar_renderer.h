#pragma once

#include <vector>

#include <QColor>
#include <QImage>
#include <QSizeF>

#include "menubar/menu_bar_item.h"

class QPainter;

namespace vantrix {

/// The colours of one appearance. Chosen whenever the row is drawn, because a panel may change its colours at any time.
struct MenuBarPalette {
    QColor label;
    QColor orange;
    QColor red;
    double captionOpacity = 0.6; ///< of the label colour, 0 to 1; the same for the bars
    double barOpacity = 0.7;

    static MenuBarPalette onDark();
    static MenuBarPalette onLight();

    bool operator==(const MenuBarPalette&) const = default;
};

/// Draws the row of items. Has no state but the fonts, which are shared. Main thread only; needs a QGuiApplication.
/// Sizes are in points (device-independent pixels).
class MenuBarRenderer {
  public:
    static constexpr double height = 22.0;

    /// The measured width of one item, in points.
    struct Layout {
        double columnWidth = 0.0; ///< reserved for the value
        double labelWidth = 0.0;  ///< the label's, in the inline style; 0 in the others
        double total = 0.0;       ///< the whole item's, label or graph included
    };

    static Layout layout(const MenuBarItem& item, MenuBarStyle style);

    /// The height of what is drawn around the row's middle, in points; less than that of the row.
    static double inkHeight(MenuBarStyle style);

    /// The smallest size of type, in points.
    static double smallestType(MenuBarStyle style);

    /// Size of the row; the width is a whole number, at least 1.
    static QSizeF size(const std::vector<MenuBarItem>& items, MenuBarStyle style);

    /// Index of the item at `x` points from the row's left edge, or the nearest. `items` is not empty.
    static std::size_t itemAt(const std::vector<MenuBarItem>& items, MenuBarStyle style, double x);

    /// Draws the row with its top left corner at the painter's origin, sharp at whatever scale the painter has.
    static void paint(QPainter& painter, const std::vector<MenuBarItem>& items, MenuBarStyle style, bool colorize,
                      const MenuBarPalette& palette);

    /// The row on a transparent background; `scale` is pixels per point. Reuses `image` if it has the right size.
    static void render(QImage& image, const std::vector<MenuBarItem>& items, MenuBarStyle style, bool colorize,
                       const MenuBarPalette& palette, double scale);

    /// One item as two lines in a square of `side` pixels, for hosts that show only squares.
    static QImage tile(const MenuBarItem& item, bool colorize, const MenuBarPalette& palette, int side);
};

/// True when two rows look the same in `style`: the histories count only where they are drawn.
bool samePicture(const std::vector<MenuBarItem>& a, const std::vector<MenuBarItem>& b, MenuBarStyle style);

} // namespace vantrix
