#include "linux/status_area/halo.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <vector>

#include <QPainter>

namespace vantrix {

namespace {

constexpr int reach = 3;     // points; wide enough to fill the letters, so that they stand on an even ground
constexpr int gain = 12;     // even close to a thin stroke the halo is as dense as it gets
constexpr int density = 191; // of 255

/// A number for each pixel, as lines one after another.
struct Cover {
    int width;
    int height;
    std::vector<int> values;
};

/// Of the pixel at `column` of line `line`, in lines of that length.
std::size_t placeOf(int line, int column, int length) {
    return static_cast<std::size_t>(line) * static_cast<std::size_t>(length) + static_cast<std::size_t>(column);
}

/// Adds up along lines what is less than `length` away, the nearer the more: twice the sum of `length` neighbours, once
/// to either side. Swaps lines and columns.
Cover spread(const Cover& cover, int length) {
    Cover result{cover.height, cover.width, std::vector<int>(cover.values.size())};
    std::vector<int> sums(static_cast<std::size_t>(cover.width + length));
    for (int y = 0; y < cover.height; ++y) {
        const int* line = cover.values.data() + std::ptrdiff_t{y} * cover.width;
        int sum = 0;
        for (int x = 0; x < cover.width + length; ++x) {
            sum += (x < cover.width ? line[x] : 0) - (x >= length ? line[x - length] : 0);
            sums[static_cast<std::size_t>(x)] = sum;
        }
        sum = std::accumulate(sums.end() - length, sums.end(), 0);
        for (int x = cover.width - 1; x >= 0; --x) {
            const int* from = sums.data() + x;
            sum += from[0] - from[length];
            result.values[placeOf(x, y, cover.height)] = sum;
        }
    }
    return result;
}

Cover coverOf(const QImage& image) {
    Cover cover{image.width(), image.height(), {}};
    cover.values.reserve(placeOf(image.height(), 0, image.width()));
    for (int y = 0; y < cover.height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < cover.width; ++x)
            cover.values.push_back(qAlpha(line[x]));
    }
    return cover;
}

/// The halo's colour at each nearness from 0 to 255, premultiplied.
std::array<QRgb, 256> shadesOf(const QColor& color) {
    std::array<QRgb, 256> shades{};
    const QRgb opaque = color.rgb();
    for (std::size_t near = 0; near < shades.size(); ++near)
        shades[near] =
            qPremultiply(qRgba(qRed(opaque), qGreen(opaque), qBlue(opaque), static_cast<int>(near) * density / 255));
    return shades;
}

} // namespace

QImage withHalo(const QImage& glyphs, const QColor& color, int pixels) {
    const int length = reach * pixels + 1;
    const int whole = length * length * length * length; // the sum of all weights
    const Cover cover =
        spread(spread(coverOf(glyphs.convertToFormat(QImage::Format_ARGB32_Premultiplied)), length), length);
    const auto shades = shadesOf(color);
    QImage image(glyphs.size(), QImage::Format_ARGB32_Premultiplied);
    const int* value = cover.values.data();
    for (int y = 0; y < cover.height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < cover.width; ++x, ++value)
            line[x] = *value == 0 ? 0 : shades[static_cast<std::size_t>(std::min(gain * *value / whole, 255))];
    }
    QPainter painter(&image);
    painter.drawImage(image.rect(), glyphs, glyphs.rect()); // whatever their scale
    return image;
}

} // namespace vantrix
