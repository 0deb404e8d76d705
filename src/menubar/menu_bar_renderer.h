#pragma once

#include <vector>

#include <QColor>
#include <QImage>
#include <QRectF>
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

    /// The part of the row that each item draws in, in points: from the middle of a gap to the middle of the next.
    static std::vector<QRectF> boxes(const std::vector<MenuBarItem>& items, MenuBarStyle style);

    /// Draws the item that has `box`, sharp at whatever scale the painter has. The painter stands in the row's points.
    static void paintItem(QPainter& painter, const MenuBarItem& item, const QRectF& box, MenuBarStyle style,
                          bool colorize, const MenuBarPalette& palette);

    /// Draws the row with its top left corner at the painter's origin; items whose boxes do not reach into `within` (in
    /// points; null is the whole row) are left out.
    static void paint(QPainter& painter, const std::vector<MenuBarItem>& items, MenuBarStyle style, bool colorize,
                      const MenuBarPalette& palette, const QRectF& within = {});

    /// The row on a transparent background; `scale` is pixels per point. Reuses `image` if it has the right size.
    static void render(QImage& image, const std::vector<MenuBarItem>& items, MenuBarStyle style, bool colorize,
                       const MenuBarPalette& palette, double scale);

    /// One item as two lines in a square of `side` pixels, for hosts that show only squares.
    static QImage tile(const MenuBarItem& item, bool colorize, const MenuBarPalette& palette, int side);
};

/// True when two items look the same in `style`: the history counts only where it is drawn.
bool looksSame(const MenuBarItem& a, const MenuBarItem& b, MenuBarStyle style);

/// True when two rows do.
bool samePicture(const std::vector<MenuBarItem>& a, const std::vector<MenuBarItem>& b, MenuBarStyle style);

} // namespace vantrix
