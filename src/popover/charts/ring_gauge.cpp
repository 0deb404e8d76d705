#include "popover/charts/ring_gauge.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QFontMetricsF>
#include <QPainter>

#include "popover/charts/threshold_color.h"
#include "support/text_format.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double response = 0.4;      // seconds
constexpr int frame = 16;             // milliseconds
constexpr double longestFrame = 0.05; // seconds: after a stall the arc goes on from where it was
constexpr double leastMove = 0.5;     // pixels; the spring's slow end has many frames that show nothing new
constexpr double fullCircle = 360.0 * 16;
constexpr double quarter = 90 * 16;
constexpr double valueSize = 17.0;

} // namespace

RingGauge::RingGauge(const Theme& theme, const UserDefaults& defaults, const QString& name, double lineWidth)
    : View(theme), defaults_(defaults), lineWidth_(lineWidth), spring_(response) {
    setAccessibleName(name);
}

void RingGauge::setFraction(double fraction) {
    const double clamped = fraction > 0.0 ? std::min(fraction, 1.0) : 0.0; // NaN, too, counts as 0
    update(); // even where the share is the same: the thresholds may have changed
    if (clamped == fraction_)
        return;
    fraction_ = clamped;
    announceChange();
    if (!isVisible() || theme().reducesMotion())
        return spring_.jumpTo(fraction_);
    spring_.setTarget(fraction_);
    if (timer_.isActive())
        return;
    sinceFrame_.start();
    timer_.start(frame, Qt::PreciseTimer, this);
}

QString RingGauge::text() const {
    return QString::fromStdString(compactPercent(fraction_));
}

void RingGauge::timerEvent(QTimerEvent*) {
    spring_.advance(std::min(static_cast<double>(sinceFrame_.restart()) / 1000.0, longestFrame));
    if (spring_.isAtRest())
        timer_.stop();
    const double circumference = std::numbers::pi * (std::min(width(), height()) - lineWidth_) * devicePixelRatioF();
    if (spring_.isAtRest() || std::abs(spring_.value() - painted_) * circumference >= leastMove)
        update();
}

void RingGauge::hideEvent(QHideEvent*) {
    timer_.stop();
    spring_.jumpTo(fraction_);
}

void RingGauge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double side = std::min(width(), height());
    const double inset = lineWidth_ / 2.0;
    const QRectF square((width() - side) / 2.0, (height() - side) / 2.0, side, side);
    const QRectF circle = square.adjusted(inset, inset, -inset, -inset);
    painter.setPen(QPen(theme().colors().quaternary, lineWidth_));
    painter.drawEllipse(circle);
    painted_ = spring_.value();
    const double shown = std::clamp(painted_, 0.0, 1.0);
    const ColorRole severity = thresholdColor(fraction_, defaults_);
    if (shown > 0.0) {
        painter.setPen(
            QPen(theme().colors().*severity, lineWidth_, Qt::SolidLine, shown < 1.0 ? Qt::RoundCap : Qt::FlatCap));
        painter.drawArc(circle, static_cast<int>(quarter), -static_cast<int>(std::lround(shown * fullCircle)));
    }
    const ThemeColors& colors = theme().colors();
    paintText(painter, severity == &ThemeColors::accent ? colors.label : colors.readable(colors.*severity));
}

void RingGauge::paintText(QPainter& painter, const QColor& color) const {
    const MonospacedFont& font = theme().digits(valueSize, QFont::DemiBold);
    const std::string percentage = text().toStdString();
    // Large text must not run into the ring.
    const double room = std::min(width(), height()) - 2.0 * lineWidth_ - 8.0;
    const double scale = std::min(1.0, room / font.width(percentage));
    painter.translate(width() / 2.0, height() / 2.0);
    painter.scale(scale, scale);
    const double baseline = std::round(font.capHeight() / 2.0);
    font.draw(painter, {-font.width(percentage) / 2.0, baseline}, percentage, color);
}

} // namespace vantrix
