#include "views/rounded_window.h"

#include <QBitmap>
#include <QPainter>
#include <QWidget>

#include "platform/desktop_services.h"

namespace vantrix {

void roundWindow(QWidget& window, double radius) {
    if (windowsAreBlended())
        return window.clearMask();
    QBitmap shape(window.size());
    shape.clear();
    QPainter painter(&shape);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(QRectF(window.rect()), radius, radius);
    painter.end();
    window.setMask(shape);
}

} // namespace vantrix
