#pragma once

#include <QImage>
#include <QWidget>

namespace vantrix {

/// `view` in that size, drawn on `ground`.
inline QImage drawn(QWidget& view, QSize size, const QColor& ground) {
    view.resize(size);
    QImage image(size, QImage::Format_RGB32);
    image.fill(ground);
    view.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

/// The least rectangle, in pixels, that holds everything drawn on `ground`.
inline QRect inkOf(const QImage& image, const QColor& ground) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y) != ground)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

} // namespace vantrix
