#include "settings/controls/slider.h"

#include <algorithm>
#include <cmath>

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "settings/controls/control_accessibility.h"
#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double usualWidth = 170.0;
constexpr double knobSide = 18.0;
constexpr double grooveHeight = 4.0;

} // namespace

Slider::Slider(const Theme& theme, const QString& name, const Range& range)
    : QSlider(Qt::Horizontal), theme_(theme), ring_(*new FocusRing(*this, theme)), range_(range) {
    installControlAccessibility();
    setAccessibleName(name);
    setRange(0, (range.most - range.least) / range.step);
    setPageStep(std::max(2, maximum() / 4));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QSlider::valueChanged, this, &Slider::choose);
}

void Slider::choose() {
    shown_ = (range_.least + value() * range_.step) / 100.0; // the double nearest to the decimal number
    Q_EMIT fractionChosen(shown_);
}

void Slider::setFraction(double fraction) {
    const QSignalBlocker quietly(this);
    shown_ = std::clamp(fraction, range_.first / 100.0, range_.last / 100.0);
    setValue(static_cast<int>(std::lround((shown_ * 100.0 - range_.least) / range_.step)));
    update();
}

QSize Slider::sizeHint() const {
    return withRing(QSizeF(usualWidth, theme_.scaled(knobSide)).toSize());
}

QRectF Slider::groove() const {
    const double inset = focusMargin + theme_.scaled(knobSide) / 2.0;
    const double thickness = theme_.scaled(grooveHeight);
    return {inset, (height() - thickness) / 2.0, width() - 2.0 * inset, thickness};
}

void Slider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.5);
    const QRectF room = groove();
    const double radius = room.height() / 2.0;
    const double filled = room.width() * (shown_ * 100.0 - range_.first) / hundredthsLong();
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(theme_.colors().label, 0.2));
    painter.drawRoundedRect(room, radius, radius);
    paintOutline(painter, *this, theme_, room, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isEnabled() ? theme_.colors().accent : theme_.colors().disabled);
    painter.drawRoundedRect(mirrored(*this, {room.left(), room.top(), filled, room.height()}), radius, radius);

    const double side = theme_.scaled(knobSide);
    const QRectF knob = mirrored(
        *this, QRectF(room.left() + filled - side / 2.0, (height() - side) / 2.0, side, side).adjusted(1, 1, -1, -1));
    paintKnob(painter, knob, true);
    paintOutline(painter, *this, theme_, knob, knob.height() / 2.0);
    ring_.paint(painter, knob, knob.height() / 2.0);
}

void Slider::dragTo(double x) {
    const QRectF room = groove();
    const double along = layoutDirection() == Qt::RightToLeft ? room.right() - x : x - room.left();
    const double hundredths = range_.first + along / std::max(room.width(), 1.0) * hundredthsLong();
    setValue(static_cast<int>(std::lround((hundredths - range_.least) / range_.step)));
}

void Slider::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return event->ignore();
    setSliderDown(true);
    dragTo(event->position().x());
}

void Slider::mouseMoveEvent(QMouseEvent* event) {
    if (isSliderDown())
        dragTo(event->position().x());
}

void Slider::mouseReleaseEvent(QMouseEvent*) {
    setSliderDown(false);
}

void Slider::wheelEvent(QWheelEvent* event) {
    event->ignore(); // scrolling the page must not change what lies under the pointer
}

} // namespace vantrix
