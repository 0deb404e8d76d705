#include "views/text_label.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int unbounded = 1 << 20;

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
}

void TextLabel::setColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    update();
}

QString TextLabel::accessibleText() const {
    return accessibleName().isEmpty() ? text_ : accessibleName();
}

double TextLabel::naturalWidth() const {
    if (style_.monospaced)
        return theme().digits(style_.points, style_.weight).width(text_.toStdString());
    return QFontMetricsF(theme().font(style_.points, style_.weight)).horizontalAdvance(text_);
}

QSize TextLabel::sizeHint() const {
    const QFontMetricsF metrics(theme().font(style_.points, style_.weight));
    return QSizeF(std::ceil(naturalWidth()), std::ceil(metrics.height())).toSize();
}

QSize TextLabel::minimumSizeHint() const {
    return {std::min(sizeHint().width(), static_cast<int>(theme().scaled(24.0))), sizeHint().height()};
}

int TextLabel::heightForWidth(int width) const {
    const QFontMetricsF metrics(theme().font(style_.points, style_.weight));
    const QRectF bounds = metrics.boundingRect(QRectF(0, 0, width, unbounded), Qt::TextWordWrap, text_);
    return static_cast<int>(std::ceil(std::max(bounds.height(), metrics.height())));
}

void TextLabel::resizeEvent(QResizeEvent*) {
    updateToolTip();
}

void TextLabel::updateToolTip() {
    const bool cut = !style_.wraps && naturalWidth() > width() + 0.5;
    const QString wanted = cut ? text_ : QString();
    if (toolTip() != wanted)
        setToolTip(wanted);
}

void TextLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor color = color_.isValid() ? color_ : theme().colors().*style_.color;
    const QFont font = theme().font(style_.points, style_.weight);
    const QFontMetricsF metrics(font);
    const bool fits = naturalWidth() <= width() + 0.5;
    if (style_.monospaced && fits) {
        const bool atRight = style_.trailing != (layoutDirection() == Qt::RightToLeft);
        const double x = atRight ? width() - naturalWidth() : 0.0;
        const double baseline = std::round((height() - metrics.height()) / 2.0 + metrics.ascent());
        theme().digits(style_.points, style_.weight).draw(painter, {x, baseline}, text_.toStdString(), color);
        return;
    }
    painter.setFont(font);
    painter.setPen(color);
    const Qt::Alignment side = style_.trailing ? Qt::AlignRight : Qt::AlignLeft;
    const auto alignment = QStyle::visualAlignment(layoutDirection(), side);
    if (style_.wraps)
        return painter.drawText(rect(), static_cast<int>(alignment | Qt::AlignTop) | Qt::TextWordWrap, text_);
    const QString shown = fits ? text_ : metrics.elidedText(text_, Qt::ElideRight, width());
    painter.drawText(rect(), static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

} // namespace vantrix
