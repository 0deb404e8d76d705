#include "views/text_label.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QStyle>

#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int unbounded = 1 << 20;
constexpr double leastScale = 0.75; // of a text that has to stay on one line

} // namespace

TextLabel::TextLabel(const Theme& theme, const Style& style, const QString& text)
    : View(theme), style_(style), text_(text) {
    QSizePolicy policy(style.wraps ? QSizePolicy::Preferred : QSizePolicy::Maximum, QSizePolicy::Preferred);
    policy.setHeightForWidth(style.wraps);
    setSizePolicy(policy);
    connect(&theme, &Theme::changed, this, &TextLabel::updateToolTip);
}

void TextLabel::setText(const QString& text) {
    if (text == text_)
        return;
    const QSize before = sizeHint();
    text_ = text;
    if (style_.wraps || sizeHint() != before)
        updateGeometry();
    updateToolTip();
    update();
    announceChange();
}

QString TextLabel::accessibleText() const {
    return accessibleName().isEmpty() ? text_ : accessibleName();
}

const TextMeasure& TextLabel::measure() const {
    return theme().measure(style_.points, style_.weight);
}

double TextLabel::naturalWidth() const {
    if (style_.monospaced)
        return theme().digits(style_.points, style_.weight).width(text_.toStdString());
    return measure().width(text_);
}

QSize TextLabel::sizeHint() const {
    const QFontMetricsF& metrics = measure().metrics();
    return QSizeF(std::ceil(naturalWidth()), std::ceil(metrics.height())).toSize();
}

QSize TextLabel::minimumSizeHint() const {
    return {std::min(sizeHint().width(), static_cast<int>(theme().scaled(24.0))), sizeHint().height()};
}

int TextLabel::heightForWidth(int width) const {
    if (!style_.wraps)
        return -1;
    const QFontMetricsF& metrics = measure().metrics();
    const QRectF bounds = metrics.boundingRect(QRectF(0, 0, width, unbounded), Qt::TextWordWrap, text_);
    return static_cast<int>(std::ceil(std::max(bounds.height(), metrics.height())));
}

void TextLabel::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

void TextLabel::updateToolTip() {
    const bool cut = !style_.wraps && !style_.monospaced && naturalWidth() * leastScale > width();
    tellInToolTip(cut ? text_ : QString());
}

void TextLabel::paintNumber(QPainter& painter, const QColor& color, const QFontMetricsF& metrics) const {
    // A number that lost its last digits would lie: one too wide is set smaller instead.
    const double scale = std::min(1.0, width() / std::max(naturalWidth(), 1.0));
    const auto side = QStyle::visualAlignment(layoutDirection(), style_.side);
    const double spare = width() - naturalWidth() * scale;
    const double baseline = (height() - metrics.height()) / 2.0 + metrics.ascent(); // as the toolkit centres text
    const double x = side & Qt::AlignRight ? spare : side & Qt::AlignHCenter ? spare / 2.0 : 0.0;
    painter.translate(x, baseline);
    painter.scale(scale, scale);
    theme().digits(style_.points, style_.weight).draw(painter, {}, text_.toStdString(), color);
}

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor color = theme().colors().*(isEnabled() ? style_.color : &ThemeColors::disabled);
    const QFontMetricsF& metrics = measure().metrics();
    if (style_.monospaced)
        return paintNumber(painter, color, metrics);
    painter.setFont(measure().font());
    painter.setPen(color);
    const auto alignment = QStyle::visualAlignment(layoutDirection(), style_.side);
    if (style_.wraps)
        return painter.drawText(rect(), static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextWordWrap, text_);
    // A little smaller is better than cut.
    const double scale = std::clamp(width() / std::max(naturalWidth(), 1.0), leastScale, 1.0);
    const QRectF room(0.0, 0.0, width() / scale, height() / scale);
    const QString shown = metrics.elidedText(text_, Qt::ElideRight, std::ceil(room.width()));
    painter.scale(scale, scale);
    painter.drawText(room, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

} // namespace vantrix
