#include "views/focus_ring.h"

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

} // namespace

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
    painter.setPen(QPen(theme_.colors().accent, ringWidth));
    painter.drawRoundedRect(rect.adjusted(-outset, -outset, outset, outset), radius + outset, radius + outset);
}

bool FocusRing::eventFilter(QObject*, QEvent* event) {
    const bool before = usesKeyboard_;
    if (event->type() == QEvent::KeyPress)
        usesKeyboard_ = true;
    else if (event->type() == QEvent::MouseButtonPress)
        usesKeyboard_ = false;
    else if (event->type() == QEvent::FocusIn && comesFromKeyboard(static_cast<QFocusEvent*>(event)->reason()))
        usesKeyboard_ = true;
    else if (event->type() == QEvent::FocusIn && static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason)
        usesKeyboard_ = false;
    if (before != usesKeyboard_)
        control_.update();
    return false;
}

} // namespace vantrix
