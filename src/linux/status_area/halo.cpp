#include "linux/status_area/halo.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <QPainter>

namespace vantrix {

namespace {

constexpr int reach = 3;      // points; wide enough to fill the letters, so that they stand on an even ground
constexpr float gain = 12.0F; // even close to a thin stroke the halo is as dense as it gets
constexpr float density = 0.75F;

/// How much of each pixel is covered, 0 to 1, as lines one after another.
struct Cover {
    int width;
    int height;
    std::vector<float> values;
};

/// Blurs along lines, and swaps lines and columns.
Cover blurred(const Cover& cover, int radius) {
    const auto weight = static_cast<float>((radius + 1) * (radius + 1));
    Cover result{cover.height, cover.width, std::vector<float>(cover.values.size())};
    for (int y = 0; y < cover.height; ++y)
        for (int x = 0; x < cover.width; ++x) {
            float sum = 0.0F;
            for (int i = std::max(-radius, -x); i <= std::min(radius, cover.width - 1 - x); ++i)
                sum += static_cast<float>(radius + 1 - std::abs(i)) *
                       cover.values[static_cast<std::size_t>(y * cover.width + x + i)];
            result.values[static_cast<std::size_t>(x * cover.height + y)] = sum / weight;
        }
    return result;
}

Cover coverOf(const QImage& image) {
    Cover cover{image.width(), image.height(), {}};
    cover.values.reserve(static_cast<std::size_t>(image.width() * image.height()));
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            cover.values.push_back(static_cast<float>(qAlpha(image.pixel(x, y))) / 255.0F);
    return cover;
}

} // namespace

QImage withHalo(const QImage& glyphs, const QColor& color, int pixels) {
    const Cover cover = blurred(blurred(coverOf(glyphs), reach * pixels), reach * pixels);
    QImage image(glyphs.size(), QImage::Format_ARGB32_Premultiplied);
    QColor shade = color;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const float near = std::min(gain * cover.values[static_cast<std::size_t>(y * cover.width + x)], 1.0F);
            shade.setAlphaF(near * density);
            image.setPixelColor(x, y, shade);
        }
    QPainter painter(&image);
    painter.drawImage(image.rect(), glyphs, glyphs.rect()); // whatever their scale
    return image;
}

} // namespace vantrix
