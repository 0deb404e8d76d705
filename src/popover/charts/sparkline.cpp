#include "popover/charts/sparkline.h"

#include <algorithm>
#include <cmath>

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

#include "monitor/readings.h"
#include "support/localization.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int chartHeight = 34;
constexpr double lineWidth = 1.5;
constexpr double opacityAtTop = 0.35;
constexpr double opacityAtBottom = 0.02;
constexpr double dotRadius = 2.5; // of the value that is pointed at
constexpr double mostSeconds = 120.0;

QString ageText(double seconds) {
    if (seconds < 0.5)
        return localizedText("now");
    const bool inMinutes = seconds >= mostSeconds;
    const auto age = std::llround(inMinutes ? seconds / 60.0 : seconds);
    return QString::fromStdString(formatted(localized(inMinutes ? "%lld min ago" : "%lld s ago"), {age}));
}

/// The curve's slope at each point: flat enough that the curve rises only where the points do.
std::vector<double> slopes(std::span<const QPointF> points) {
    std::vector<double> secants(points.size() - 1);
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        secants[i] = (points[i + 1].y() - points[i].y()) / (points[i + 1].x() - points[i].x());
    std::vector<double> result(points.size());
    result.front() = secants.front();
    result.back() = secants.back();
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        const double before = secants[i - 1];
        const double after = secants[i];
        // The harmonic mean: 0 at a peak, and never more than twice the flatter side.
        result[i] = before * after <= 0.0 ? 0.0 : 2.0 * before * after / (before + after);
    }
    return result;
}

} // namespace

QPainterPath monotoneCurve(std::span<const QPointF> points) {
    QPainterPath path;
    if (points.empty())
        return path;
    path.moveTo(points.front());
    if (points.size() < 2)
        return path;
    const std::vector<double> slope = slopes(points);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const double third = (points[i + 1].x() - points[i].x()) / 3.0;
        path.cubicTo(points[i] + QPointF(third, third * slope[i]), points[i + 1] - QPointF(third, third * slope[i + 1]),
                     points[i + 1]);
    }
    return path;
}

Sparkline::Sparkline(const Theme& theme, const QString& name, ColorRole color, const Scale& scale, Text text)
    : View(theme), color_(color), scale_(scale), text_(text) {
    setAccessibleName(name);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Sparkline::setValues(std::span<const double> values, double interval) {
    interval_ = interval;
    if (std::equal(values.begin(), values.end(), values_.begin(), values_.end()))
        return;
    values_.assign(values.begin(), values.end());
    tell();
    update();
    announceChange();
}

void Sparkline::setColor(ColorRole color) {
    if (color == color_)
        return;
    color_ = color;
    update();
}

void Sparkline::setText(Text text) {
    if (text == text_)
        return;
    text_ = text;
    tell();
    announceChange();
}

double Sparkline::top() const {
    if (scale_.maximum)
        return std::max(*scale_.maximum, 0.0);
    const double largest = values_.empty() ? 0.0 : *std::max_element(values_.begin(), values_.end());
    return std::max({largest, scale_.minimumScale, 0.0});
}

QSize Sparkline::sizeHint() const {
    return {40, chartHeight};
}

double Sparkline::step() const {
    return static_cast<double>(width()) / (historyLength - 1);
}

std::optional<std::size_t> Sparkline::nearest(double x) const {
    const auto age = static_cast<std::size_t>(std::lround(std::max(width() - x, 0.0) / std::max(step(), 1e-3)));
    return age < values_.size() ? std::optional(values_.size() - 1 - age) : std::nullopt;
}

QString Sparkline::textAt(double x) const {
    const auto index = nearest(x);
    if (!index)
        return {};
    const auto age = static_cast<double>(values_.size() - 1 - *index) * interval_;
    return text_(values_[*index]) + QStringLiteral(" · ") + ageText(age);
}

QString Sparkline::accessibleText() const {
    if (values_.empty())
        return accessibleName();
    const auto [least, most] = std::minmax_element(values_.begin(), values_.end());
    const auto written = [this](double value) { return text_(value).toStdString(); };
    const std::string summary = formatted(localized("now %@, lowest %@, highest %@"),
                                          {written(values_.back()), written(*least), written(*most)});
    return accessibleName() + QStringLiteral(": ") + QString::fromStdString(summary);
}

void Sparkline::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = event->position().toPoint();
    tell();
    update();
}

void Sparkline::leaveEvent(QEvent*) {
    pointer_.reset();
    update();
}

void Sparkline::tell() {
    if (pointer_)
        QToolTip::showText(mapToGlobal(*pointer_), textAt(pointer_->x()), this, rect());
}

std::vector<QPointF> Sparkline::points() const {
    // Half the line's width stays free above and below, or a value at an edge would lose half its line.
    const double bottom = height() - lineWidth / 2.0;
    const double span = bottom - lineWidth / 2.0;
    const double oldest = width() - static_cast<double>(values_.size() - 1) * step();
    const double scale = top() > 0.0 ? span / top() : 0.0;
    std::vector<QPointF> points;
    points.reserve(values_.size());
    for (std::size_t i = 0; i < values_.size(); ++i)
        points.emplace_back(oldest + static_cast<double>(i) * step(),
                            bottom - std::clamp(values_[i] * scale, 0.0, span));
    return points;
}

void Sparkline::paintEvent(QPaintEvent*) {
    if (values_.empty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const std::vector<QPointF> marks = points();
    const QColor color = theme().colors().*color_;
    const QPainterPath line = monotoneCurve(marks);

    QPainterPath area = line;
    area.lineTo(marks.back().x(), height());
    area.lineTo(marks.front().x(), height());
    QLinearGradient gradient(0, 0, 0, height());
    gradient.setColorAt(0.0, withAlpha(color, opacityAtTop));
    gradient.setColorAt(1.0, withAlpha(color, opacityAtBottom));
    painter.fillPath(area, gradient);

    painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (marks.size() == 1)
        painter.drawPoint(marks.front());
    else
        painter.drawPath(line);
    if (const auto index = pointer_ ? nearest(pointer_->x()) : std::nullopt)
        paintPointed(painter, marks[*index]);
}

void Sparkline::paintPointed(QPainter& painter, const QPointF& mark) const {
    const QPointF inside(std::clamp(mark.x(), dotRadius, width() - dotRadius),
                         std::clamp(mark.y(), dotRadius, height() - dotRadius));
    painter.setPen(QPen(theme().colors().tertiary, 1.0));
    painter.drawLine(QPointF(inside.x(), 0.0), QPointF(inside.x(), height()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().colors().label);
    painter.drawEllipse(inside, dotRadius, dotRadius);
}

} // namespace vantrix
