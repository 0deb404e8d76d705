#pragma once

#include <memory>
#include <optional>

#include <QImage>
#include <QWidget>

namespace vantrix {

class Theme;

/// A borderless window that never comes to a screen: lays a view out at a fixed size and draws it.
class OffscreenWindow : public QWidget {
  public:
    /// Pixels per point of the pictures.
    static constexpr int scale = 2;

    OffscreenWindow(const Theme& theme, std::unique_ptr<QWidget> view, QSize size);

    /// The view on the window's ground; absent where there is no memory for it.
    std::optional<QImage> picture();

  private:
    const Theme& theme_;
};

/// A picture of `size` points; null where there is no memory for it.
QImage makePicture(QSize size, const QColor& ground);

/// The part of `image` from its top down to its lowest content and a margin. The ground is the colour near the lower
/// left corner. All of it where that would not make it smaller.
QImage croppedBelowContent(const QImage& image);

} // namespace vantrix
