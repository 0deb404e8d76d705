#include "linux/status_area/click_anchor.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>

namespace vantrix {

namespace {

constexpr int itemSide = 22;
constexpr int usualPanel = 32;    // points; where the screen does not tell, as under most Wayland compositors
constexpr int thickestPanel = 96; // points; beyond this a point is not on a panel

// Qt keeps a screen's position in device pixels and scales its size only.
QRect nativeGeometry(const QScreen& screen) {
    const QRect geometry = screen.geometry();
    return {geometry.topLeft(), (QSizeF(geometry.size()) * screen.devicePixelRatio()).toSize()};
}

} // namespace

QPoint fromNativePoint(QPoint point) {
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect native = nativeGeometry(*screen);
        if (native.contains(point))
            return native.topLeft() + (QPointF(point - native.topLeft()) / screen->devicePixelRatio()).toPoint();
    }
    return point;
}

QRect fromNativeRect(QRect rect) {
    const QPoint topLeft = fromNativePoint(rect.topLeft());
    const QPoint bottomRight = fromNativePoint(rect.bottomRight());
    return {topLeft, QPoint(std::max(topLeft.x(), bottomRight.x()), std::max(topLeft.y(), bottomRight.y()))};
}

std::optional<QRect> panelRectAt(QPoint point) {
    const QScreen* screen = QGuiApplication::screenAt(point);
    if (screen == nullptr)
        return std::nullopt;
    const QRect whole = screen->geometry();
    const QRect free = screen->availableGeometry();
    QRect rect(point.x() - itemSide / 2, point.y() - itemSide / 2, itemSide, itemSide);
    if (point.y() < free.top()) {
        rect.setTop(whole.top());
        rect.setBottom(free.top() - 1);
    } else if (point.y() > free.bottom()) {
        rect.setTop(free.bottom() + 1);
        rect.setBottom(whole.bottom());
    } else if (point.x() < free.left()) {
        rect.setLeft(whole.left());
        rect.setRight(free.left() - 1);
    } else if (point.x() > free.right()) {
        rect.setLeft(free.right() + 1);
        rect.setRight(whole.right());
    }
    return rect & whole;
}

QRect acrossPanel(QRect item, const QRect& panel) {
    if (std::min(panel.width(), panel.height()) > thickestPanel || !panel.contains(item))
        return item;
    const bool isUpright = panel.height() > panel.width();
    return isUpright ? QRect(panel.left(), item.top(), panel.width(), item.height())
                     : QRect(item.left(), panel.top(), item.width(), panel.height());
}

bool isOnScreenEdge(QPoint point) {
    const QScreen* screen = QGuiApplication::screenAt(point);
    if (screen == nullptr || point == screen->geometry().topLeft())
        return false; // hosts that do not know the place send 0, 0
    const QRect free = screen->availableGeometry();
    if (free != screen->geometry() && !free.contains(point))
        return true;
    const QRect inner = screen->geometry().adjusted(thickestPanel, thickestPanel, -thickestPanel, -thickestPanel);
    return !inner.contains(point);
}

QRect panelCorner(int width) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return {0, 0, std::max(width, 1), usualPanel};
    const QRect whole = screen->geometry();
    const QRect free = screen->availableGeometry();
    const bool atBottom = free.top() == whole.top() && free.bottom() < whole.bottom();
    const int thickness = atBottom ? whole.bottom() - free.bottom() : free.top() - whole.top();
    const int height = thickness > 0 ? thickness : usualPanel;
    const int top = atBottom ? whole.bottom() + 1 - height : whole.top();
    width = std::clamp(width, 1, whole.width());
    return {whole.right() + 1 - width, top, width, height};
}

} // namespace vantrix
