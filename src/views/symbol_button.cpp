#include "views/symbol_button.h"

#include <cmath>

#include <QPainter>

#include "menubar/symbol.h"
#include "views/focus_ring.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double sizeToText = 1.3; // the drawings have some air around them
constexpr double padding = 3.0;
constexpr double cornerRadius = 5.0;

} // namespace

SymbolButton::SymbolButton(const Theme& theme, std::string_view symbol, double points, const QString& name)
    : theme_(theme), ring_(*new FocusRing(*this, theme)), symbol_(symbol), points_(points) {
    setAccessibleName(name);
    setToolTip(name);
    setAutoDefault(true); // Return presses it, too
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SymbolButton::sizeHint() const {
    const int side = static_cast<int>(std::lround(theme_.scaled(points_ * sizeToText) + 2.0 * padding));
    return {side + 2 * focusMargin, side + 2 * focusMargin};
}

void SymbolButton::paintEvent(QPaintEvent*) {
    const ThemeColors& colors = theme_.colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground = QRectF(rect()).adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin);
    if (isEnabled() && (isDown() || underMouse())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? colors.control : colors.card);
        painter.drawRoundedRect(ground, cornerRadius, cornerRadius);
    }
    ring_.paint(painter, ground, cornerRadius);
    const QRectF place = ground.adjusted(padding, padding, -padding, -padding);
    paintSymbol(painter, symbol_, place, isEnabled() ? colors.secondary : colors.quaternary);
}

} // namespace vantrix
