#include "views/focus_ring.h"

#include <optional>

#include <QFocusEvent>
#include <QPainter>
#include <QWidget>

#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double ringWidth = 2.0;

bool comesFromKeyboard(Qt::FocusReason reason) {
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

/// Whether `event` shows that the keyboard is in use (true) or the mouse (false); absent where it shows neither.
std::optional<bool> keyboardSign(const QEvent& event) {
    switch (event.type()) {
    case QEvent::KeyPress:
        return true;
    case QEvent::MouseButtonPress:
        return false;
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
        if (comesFromKeyboard(reason))
            return true;
        return reason == Qt::MouseFocusReason ? std::optional(false) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

} // namespace

QRectF insideRing(const QWidget& control) {
    return QRectF(control.rect()).adjusted(focusMargin, focusMargin, -focusMargin, -focusMargin);
}

QSize withRing(const QSize& drawing) {
    return drawing + QSize(2 * focusMargin, 2 * focusMargin);
}

FocusRing::FocusRing(QWidget& control, const Theme& theme) : QObject(&control), control_(control), theme_(theme) {
    control.installEventFilter(this);
    connect(&theme, &Theme::changed, &control, [&control] {
        control.updateGeometry();
        control.update();
    });
}

void FocusRing::paint(QPainter& painter, const QRectF& rect, double radius) const {
    if (!usesKeyboard_ || !control_.hasFocus())
        return;
    constexpr double outset = focusMargin - ringWidth / 2.0;
    painter.setBrush(Qt::NoBrush);
    const ThemeColors& colors = theme_.colors();
    painter.setPen(QPen(colors.areHighContrast() ? colors.label : colors.accent, ringWidth));
    painter.drawRoundedRect(rect.adjusted(-outset, -outset, outset, outset), radius + outset, radius + outset);
}

bool FocusRing::eventFilter(QObject*, QEvent* event) {
    const bool uses = keyboardSign(*event).value_or(usesKeyboard_);
    if (uses != usesKeyboard_)
        control_.update();
    usesKeyboard_ = uses;
    return false;
}

} // namespace vantrix
