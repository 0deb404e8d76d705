#pragma once

#include <functional>
#include <vector>

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QRect>
#include <QTransform>

#include "menubar/menu_bar_renderer.h"

namespace vantrix {

/// The row as a picture that is kept: of the next row only those items are drawn that look different, with the same
/// pixels as if all were. Main thread only.
class RowPicture {
  public:
    struct Look {
        MenuBarStyle style = MenuBarStyle::stacked;
        bool colorize = true;
        MenuBarPalette palette;
        QSize size;         ///< pixels
        QTransform toPixel; ///< from the row's points; moves and scales
        QFont font = QGuiApplication::font();

        bool operator==(const Look&) const = default;
    };

    /// Draws what differs from the row drawn last, and tells which parts of the picture are new. They do not overlap,
    /// and what an item draws is within one.
    std::vector<QRect> draw(const std::vector<MenuBarItem>& items, const Look& look);

    /// Draws something else instead, whole.
    std::vector<QRect> draw(const Look& look, const std::function<void(QPainter&)>& paint);

    /// What the row stands on, as large as the picture; null is nothing at all. All of it is drawn anew then.
    void setGround(QImage ground);

    /// Premultiplied ARGB.
    const QImage& image() const { return image_; }

  private:
    void begin();
    QRect placeOf(std::size_t index) const;
    void drawItem(QPainter& painter, std::size_t index, const QRect& place) const;

    std::vector<MenuBarItem> items_;
    std::vector<QRectF> boxes_;
    Look look_;
    QImage ground_;
    QImage image_;
};

} // namespace vantrix
