#include "menubar/symbol.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <tuple>

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <QTransform>

#include "platform/system_symbols.h"

namespace vantrix {
namespace {

/// Empty where no symbol has that name.
QByteArray source(std::string_view name) {
    const auto text = QString::fromUtf8(name);
    QFile file(QStringLiteral(":/symbols/%1.svg").arg(text));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QImage ownSymbol(std::string_view name, int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const auto data = source(name);
    if (data.isEmpty())
        return image;
    QPainter painter(&image);
    QSvgRenderer(data).render(&painter, image.rect());
    return image;
}

void paintSymbol(QPainter& painter, std::string_view name, const QRectF& rect, const QColor& color) {
    const auto toDevice = painter.deviceTransform();
    const auto target = toDevice.mapRect(rect);
    const auto side = static_cast<int>(std::lround(std::min(target.width(), target.height())));
    bool invertible = false;
    const auto fromDevice = toDevice.inverted(&invertible);
    if (side < 1 || !invertible)
        return;

    // A picture of the exact device size on a whole device pixel: no scale can blur it.
    const auto corner = target.center() - QPointF(side, side) / 2.0;
    painter.save();
    painter.setTransform(fromDevice, true);
    painter.drawImage(corner.toPoint(), symbolImage(name, color, side));
    painter.restore();
}

double symbolTextSize(double side) {
    return 0.8 * side; // round symbols then nearly fill the square
}

QRectF symbolPlace(const QSizeF& natural, double side) {
    const bool fits = natural.width() <= side && natural.height() <= side;
    QRectF place(QPointF(), fits ? natural : natural.scaled(side, side, Qt::KeepAspectRatio));
    place.moveCenter(QPointF(side, side) / 2.0);
    return place;
}

namespace {

QImage drawnSymbol(std::string_view name, const QColor& color, int side) {
    QImage image = systemSymbol(name, side);
    if (image.isNull())
        image = ownSymbol(name, side);
    // Symbols are drawn in black; only their coverage counts.
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    return image;
}

} // namespace

QImage symbolImage(std::string_view name, const QColor& color, int side) {
    // The same few are drawn again and again, and each would be read and parsed.
    static std::map<std::tuple<std::string, QRgb, int>, QImage> known;
    constexpr std::size_t most = 64; // in a few colours
    constexpr int largestSide = 64;  // pixels; larger ones are for pictures that are made once
    if (side < 1)
        return {};
    if (side > largestSide)
        return drawnSymbol(name, color, side);
    const std::tuple key(std::string(name), color.rgba(), side);
    if (const auto found = known.find(key); found != known.end())
        return found->second;
    if (known.size() >= most)
        known.clear();
    return known.emplace(key, drawnSymbol(name, color, side)).first->second;
}

} // namespace vantrix
