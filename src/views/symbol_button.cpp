#include "views/symbol_button.h"

#include <cmath>

#include <QPainter>

#include "menubar/symbol.h"
#include "views/focus_ring.h"
#include "views/symbol_view.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double padding = 3.0;
constexpr double cornerRadius = 5.0;

} // namespace

SymbolButton::SymbolButton(const Theme& theme, std::string_view symbol, double points, const QString& name)
    : Button(theme), symbol_(symbol), points_(points) {
    setAccessibleName(name);
    setToolTip(name);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SymbolButton::sizeHint() const {
    const int side = static_cast<int>(std::lround(symbolSideFor(theme(), points_) + 2.0 * padding));
    return withRing({side, side});
}

void SymbolButton::paintEvent(QPaintEvent*) {
    const ThemeColors& colors = theme().colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ground = insideRing(*this);
    if (isEnabled() && (isDown() || underMouse())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? colors.control : colors.card);
        painter.drawRoundedRect(ground, cornerRadius, cornerRadius);
    }
    ring().paint(painter, ground, cornerRadius);
    const QRectF place = ground.adjusted(padding, padding, -padding, -padding);
    paintSymbol(painter, symbol_, place, isEnabled() ? colors.secondary : colors.disabled);
}

} // namespace vantrix
