#include "settings/controls/check_box.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>

#include "menubar/symbol.h"
#include "settings/controls/drawing.h"
#include "views/focus_ring.h"
#include "views/shapes.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double boxSide = 16.0;
constexpr double symbolSide = 18.0;
constexpr double gap = 8.0;
constexpr int unbounded = 1 << 20;

} // namespace

CheckBox::CheckBox(const Theme& theme, std::string_view symbol, const QString& text)
    : QCheckBox(text), theme_(theme), ring_(*new FocusRing(*this, theme)), symbol_(symbol) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

double CheckBox::textStart() const {
    return focusMargin + theme_.scaled(boxSide + gap + symbolSide + gap);
}

QSize CheckBox::sizeHint() const {
    const QFontMetricsF metrics(theme_.font(bodyPoints));
    const double height = std::max(metrics.height(), theme_.scaled(symbolSide));
    const double width = textStart() + metrics.horizontalAdvance(text()) + 1.0;
    return QSizeF(std::ceil(width), std::ceil(height) + 2 * focusMargin).toSize();
}

QSize CheckBox::minimumSizeHint() const {
    const double width = textStart() + widestWord(theme_.font(bodyPoints), text());
    return {static_cast<int>(std::ceil(width)), sizeHint().height()};
}

int CheckBox::heightForWidth(int width) const {
    const QFontMetricsF metrics(theme_.font(bodyPoints));
    const QRectF room(0, 0, width - textStart(), unbounded);
    const double height = metrics.boundingRect(room, Qt::TextWordWrap, text()).height();
    return std::max(sizeHint().height(), static_cast<int>(std::ceil(height)) + 2 * focusMargin);
}

void CheckBox::paintBox(QPainter& painter, const QRectF& box) const {
    const ThemeColors& colors = theme_.colors();
    const double radius = theme_.scaled(4.0);
    painter.setPen(isChecked() ? QPen(Qt::NoPen) : QPen(withAlpha(colors.label, 0.3), 1.0));
    painter.setBrush(isChecked() ? colors.accent : colors.control);
    painter.drawRoundedRect(isChecked() ? box : box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    if (isDown()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(withAlpha(colors.label, 0.15));
        painter.drawRoundedRect(box, radius, radius);
    }
    const double inset = theme_.scaled(2.0);
    if (isChecked())
        paintSymbol(painter, "checkmark", box.adjusted(inset, inset, -inset, -inset),
                    ThemeColors::markOn(colors.accent));
    paintOutline(painter, *this, theme_, box, radius);
    ring_.paint(painter, box, radius);
}

void CheckBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1.0 : 0.5);
    const auto centred = [this](double x, double side) {
        return mirrored(*this, {x, std::round((height() - side) / 2.0), side, side});
    };
    paintBox(painter, centred(focusMargin, theme_.scaled(boxSide)));
    paintSymbol(painter, symbol_, centred(focusMargin + theme_.scaled(boxSide + gap), theme_.scaled(symbolSide)),
                theme_.colors().secondary);
    painter.setFont(theme_.font(bodyPoints));
    painter.setPen(textColor(*this, theme_));
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter;
    const QRectF room = mirrored(*this, {textStart(), 0.0, width() - textStart(), double(height())});
    painter.drawText(room, static_cast<int>(alignment) | Qt::TextWordWrap, text());
}

} // namespace vantrix
