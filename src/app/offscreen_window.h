#pragma once

#include <memory>
#include <optional>

#include <QImage>
#include <QWidget>

namespace vantrix {

class Theme;

/// A borderless window that is never shown on a screen: lays out a view at a fixed size and draws it.
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

/// A picture of `size` points, filled with `ground`; its resolution tells readers that size in points. Null where there
/// is no memory for it.
QImage makePicture(QSize size, const QColor& ground);

/// `image` cut off a margin below its lowest content, or unchanged where that would not make it smaller. The ground is
/// the colour near the lower left corner; content is what differs from it.
QImage croppedBelowContent(const QImage& image);

} // namespace vantrix
