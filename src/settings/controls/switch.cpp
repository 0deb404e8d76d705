#include "settings/controls/switch.h"

#include <QPainter>

#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr QSizeF track(36.0, 20.0);
constexpr double knobInset = 2.0;
constexpr int slideMilliseconds = 140;

QColor blend(const QColor& from, const QColor& to, double share) {
    const auto part = [share](float a, float b) { return a + (b - a) * static_cast<float>(share); };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()), part(from.alphaF(), to.alphaF()));
}

} // namespace

Switch::Switch(const Theme& theme, const QString& name) : theme_(theme), ring_(*new FocusRing(*this, theme)) {
    setAccessibleName(name);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    knob_.setDuration(slideMilliseconds);
    knob_.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&knob_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        place_ = value.toDouble();
        update();
    });
    connect(this, &QCheckBox::toggled, this, &Switch::slideKnob);
}

void Switch::slideKnob(bool on) {
    const double end = on ? 1.0 : 0.0;
    knob_.stop();
    if (!isVisible() || theme_.reducesMotion()) {
        place_ = end;
        return update();
    }
    knob_.setStartValue(place_);
    knob_.setEndValue(end);
    knob_.start();
}

QSize Switch::sizeHint() const {
    return withRing((track * theme_.textScale()).toSize());
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF ground(QPointF(), track * theme_.textScale());
    ground.moveCenter(QRectF(rect()).center());
    const double radius = ground.height() / 2.0;

    const ThemeColors& colors = theme_.colors();
    painter.setOpacity(isEnabled() ? 1.0 : 0.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(blend(withAlpha(colors.label, 0.24), colors.accent, place_));
    painter.drawRoundedRect(ground, radius, radius);
    paintOutline(painter, *this, theme_, ground, radius);
    const double side = ground.height() - 2.0 * theme_.scaled(knobInset);
    const double x = ground.left() + theme_.scaled(knobInset) + place_ * (ground.width() - ground.height());
    const QRectF knob = mirrored(*this, {x, ground.top() + theme_.scaled(knobInset), side, side});
    paintKnob(painter, knob, true);
    paintOutline(painter, *this, theme_, knob, side / 2.0);
    ring_.paint(painter, ground, radius);
}

} // namespace vantrix
