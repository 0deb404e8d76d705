#include "settings/controls/tab_button.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "menubar/symbol.h"
#include "settings/controls/control_accessibility.h"
#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double checkedGround = 0.08;
constexpr double usualPoints = 11.0;
constexpr double leastWidth = 72.0;
constexpr double sidePadding = 8.0;
constexpr double symbolSide = 24.0;
constexpr double topPadding = 4.0;
constexpr double bottomPadding = 4.0;
constexpr double symbolGap = 2.0;
constexpr double radius = 8.0;

} // namespace

TabButton::TabButton(const Theme& theme, std::string_view symbol, const QString& title)
    : ChoiceButton(theme, title), symbol_(symbol), points_(usualPoints) {
    installControlAccessibility();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

double TabButton::widthAt(double points) const {
    const double title = QFontMetricsF(theme().font(points, QFont::Medium)).horizontalAdvance(text());
    return std::max(std::ceil(title) + 2.0 * sidePadding, leastWidth) + 2 * focusMargin;
}

void TabButton::setLook(double points, double width) {
    points_ = points;
    width_ = width;
    updateGeometry();
    update();
}

QSize TabButton::sizeHint() const {
    const double line = std::ceil(QFontMetricsF(theme().font(points_)).height());
    const double height = topPadding + theme().scaled(symbolSide) + symbolGap + line + bottomPadding;
    return QSizeF(width_, height + 2 * focusMargin).toSize();
}

void TabButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const ThemeColors& colors = theme().colors();
    const QRectF ground = insideRing(*this);
    if (isChecked() || underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isChecked() ? withAlpha(colors.label, checkedGround) : withAlpha(colors.label, 0.04));
        painter.drawRoundedRect(ground, radius, radius);
    }
    if (isChecked())
        paintOutline(painter, *this, theme(), ground, radius);
    ring().paint(painter, ground, radius);

    const QColor behind = over(withAlpha(colors.label, checkedGround), colors.window);
    const QColor color = isChecked() ? ThemeColors::readable(colors.accent, behind) : colors.secondary;
    const double side = theme().scaled(symbolSide);
    const QRectF symbol(ground.center().x() - side / 2.0, ground.top() + topPadding, side, side);
    paintSymbol(painter, symbol_, symbol, color);
    const QFont font = theme().font(points_, QFont::Medium);
    const QRectF line(ground.left(), symbol.bottom() + symbolGap, ground.width(),
                      ground.bottom() - bottomPadding - symbol.bottom() - symbolGap);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine,
                     QFontMetricsF(font).elidedText(text(), Qt::ElideRight, line.width()));
}

} // namespace vantrix
