#include "views/divider.h"

#include <QPainter>

#include "views/theme.h"

namespace vantrix {

Divider::Divider(const Theme& theme) : View(theme) {
    setFixedHeight(1);
}

void Divider::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), theme().colors().separator);
}

} // namespace vantrix
