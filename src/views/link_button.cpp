#include "views/link_button.h"

#include <cmath>

#include <QFontMetricsF>
#include <QPainter>

#include "views/focus_ring.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr double textSize = 11.0;
constexpr double cornerRadius = 3.0;

} // namespace

LinkButton::LinkButton(const Theme& theme, const QString& text, const QString& description)
    : QPushButton(text), theme_(theme), ring_(*new FocusRing(*this, theme)) {
    setToolTip(description);
    setAccessibleDescription(description);
    setAutoDefault(true); // Return presses it, too
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize LinkButton::sizeHint() const {
    const QFontMetricsF metrics(theme_.font(textSize));
    return QSizeF(std::ceil(metrics.horizontalAdvance(text())), std::ceil(metrics.height())).toSize();
}

void LinkButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The line stands among others: the ring lies over the text's own edge rather than to keep room of its own.
    ring_.paint(painter, rect().adjusted(1, 1, -1, -1), cornerRadius);
    painter.setFont(theme_.font(textSize));
    painter.setPen(theme_.colors().accent);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

} // namespace vantrix
