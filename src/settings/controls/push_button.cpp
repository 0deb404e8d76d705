#include "settings/controls/push_button.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double sidePadding = 12.0;
constexpr double fieldHeight = 24.0;

} // namespace

PushButton::PushButton(const Theme& theme, const QString& text)
    : QPushButton(text), theme_(theme), ring_(*new FocusRing(*this, theme)) {
    setAutoDefault(true); // the return key presses it
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize PushButton::sizeHint() const {
    const double text = QFontMetricsF(theme_.font(bodyPoints)).horizontalAdvance(this->text());
    const QSizeF ground(std::ceil(text + theme_.scaled(2.0 * sidePadding)), theme_.scaled(fieldHeight));
    return ground.toSize() + QSize(2 * focusMargin, 2 * focusMargin);
}

void PushButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground = QRectF(rect()).adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin);
    paintButtonGround(painter, *this, theme_, ground, isDown());
    ring_.paint(painter, ground, theme_.scaled(6.0));
    painter.setFont(fittingFont(theme_, text(), QFont::Normal, ground.width() - theme_.scaled(sidePadding)));
    painter.setPen(textColor(*this, theme_));
    painter.drawText(ground, Qt::AlignCenter | Qt::TextSingleLine, text());
}

} // namespace vantrix
