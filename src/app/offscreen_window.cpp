#include "app/offscreen_window.h"

#include <cmath>

#include <QCoreApplication>
#include <QVBoxLayout>

#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double metersPerInch = 0.0254;
constexpr int dotsPerInch = 72 * OffscreenWindow::scale; // a point is a 72nd of an inch
constexpr int dotsPerMeter = qRound(dotsPerInch / metersPerInch);
constexpr int cropMargin = 12 * OffscreenWindow::scale;
constexpr int sampleStep = 3;
constexpr double leastDifference = 0.02;

bool differs(const QColor& a, const QColor& b) {
    const auto apart = [](float x, float y) { return std::abs(x - y) > leastDifference; };
    return apart(a.redF(), b.redF()) || apart(a.greenF(), b.greenF()) || apart(a.blueF(), b.blueF());
}

bool hasContent(const QImage& image, int row, const QColor& ground) {
    for (int x = 0; x < image.width(); x += sampleStep)
        if (differs(image.pixelColor(x, row), ground))
            return true;
    return false;
}

} // namespace

OffscreenWindow::OffscreenWindow(const Theme& theme, std::unique_ptr<QWidget> view, QSize size)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), theme_(theme) {
    setAttribute(Qt::WA_DontShowOnScreen);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view.release());
    setFixedSize(size);
    show();
    // Rows that wrap ask for another height once they know their width.
    for (int round = 0; round < 3; ++round)
        QCoreApplication::sendPostedEvents();
}

std::optional<QImage> OffscreenWindow::picture() {
    QImage image = makePicture(size(), theme_.colors().window);
    if (image.isNull())
        return std::nullopt;
    render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

QImage makePicture(QSize size, const QColor& ground) {
    QImage image(size * OffscreenWindow::scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(OffscreenWindow::scale);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.fill(ground);
    return image;
}

QImage croppedBelowContent(const QImage& image) {
    if (image.width() < 2 || image.height() < 2)
        return image;
    const QColor ground = image.pixelColor(1, image.height() - 2);
    int lowest = image.height() - 1;
    while (lowest >= 0 && !hasContent(image, lowest, ground))
        --lowest;
    const int height = lowest + 1 + cropMargin;
    return lowest < 0 || height >= image.height() ? image : image.copy(0, 0, image.width(), height);
}

} // namespace vantrix
