#include "menubar/row_picture.h"

#include <cmath>
#include <utility>

#include <QPainter>

namespace vantrix {

void RowPicture::setGround(QImage ground) {
    ground_ = std::move(ground);
    image_ = QImage();
}

std::vector<QRect> RowPicture::draw(const std::vector<MenuBarItem>& items, const Look& look) {
    auto boxes = MenuBarRenderer::boxes(items, look.style);
    const bool isAnother = image_.isNull() || look != look_ || boxes != boxes_;
    const auto before = std::exchange(items_, items);
    look_ = look;
    boxes_ = std::move(boxes);
    if (isAnother)
        begin();
    std::vector<QRect> drawn;
    QPainter painter(&image_);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (!isAnother && looksSame(before[i], items[i], look.style))
            continue;
        const QRect place = placeOf(i);
        if (place.isEmpty())
            continue;
        drawItem(painter, i, place);
        drawn.push_back(place);
    }
    return drawn;
}

std::vector<QRect> RowPicture::draw(const Look& look, const std::function<void(QPainter&)>& paint) {
    look_ = look;
    items_.clear();
    boxes_.clear();
    begin();
    QPainter painter(&image_);
    painter.setTransform(look_.toPixel);
    paint(painter);
    return {image_.rect()};
}

void RowPicture::begin() {
    image_ = QImage(look_.size, QImage::Format_ARGB32_Premultiplied);
    image_.fill(Qt::transparent);
    if (!ground_.isNull())
        QPainter(&image_).drawImage(0, 0, ground_);
}

/// In whole pixels. All together are the picture.
QRect RowPicture::placeOf(std::size_t index) const {
    const auto edge = [&](double x) { return static_cast<int>(std::lround(look_.toPixel.map(QPointF(x, 0.0)).x())); };
    const int left = index == 0 ? 0 : edge(boxes_[index].left());
    const int right = index + 1 == boxes_.size() ? image_.width() : edge(boxes_[index].right());
    return QRect(left, 0, right - left, image_.height()) & image_.rect();
}

void RowPicture::drawItem(QPainter& painter, std::size_t index, const QRect& place) const {
    painter.resetTransform();
    painter.setClipRect(place);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (ground_.isNull())
        painter.fillRect(place, Qt::transparent);
    else
        painter.drawImage(place, ground_, place);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setTransform(look_.toPixel);
    MenuBarRenderer::paintItem(painter, items_[index], boxes_[index], look_.style, look_.colorize, look_.palette);
}

} // namespace vantrix
