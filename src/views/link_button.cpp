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

LinkButton::LinkButton(const Theme& theme, const QString& text, const QString& description) : Button(theme, text) {
    setToolTip(description);
    setAccessibleDescription(description);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize LinkButton::sizeHint() const {
    const QFontMetricsF metrics(theme().font(textSize));
    return QSizeF(std::ceil(metrics.horizontalAdvance(text())), std::ceil(metrics.height())).toSize();
}

void LinkButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // The line stands among others, so the ring takes no room of its own: it lies over the edge of the text.
    ring().paint(painter, rect().adjusted(1, 1, -1, -1), cornerRadius);
    painter.setFont(theme().font(textSize));
    painter.setPen(theme().colors().accent);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
}

} // namespace vantrix
