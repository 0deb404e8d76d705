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

PushButton::PushButton(const Theme& theme, const QString& text) : Button(theme, text) {
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize PushButton::sizeHint() const {
    const double text = QFontMetricsF(theme().font(bodyPoints)).horizontalAdvance(this->text());
    const QSizeF ground(std::ceil(text + theme().scaled(2.0 * sidePadding)), theme().scaled(fieldHeight));
    return withRing(ground.toSize());
}

void PushButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground = insideRing(*this);
    paintButtonGround(painter, *this, theme(), ground, isDown());
    ring().paint(painter, ground, theme().scaled(6.0));
    painter.setFont(fittingFont(theme(), text(), QFont::Normal, ground.width() - theme().scaled(sidePadding)));
    painter.setPen(textColor(*this, theme()));
    painter.drawText(ground, Qt::AlignCenter | Qt::TextSingleLine, text());
}

} // namespace vantrix
