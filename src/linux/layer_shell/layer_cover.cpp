#include "linux/layer_shell/layer_cover.h"

#include <LayerShellQt/Window>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include "linux/layer_shell/layer_place.h"

namespace vantrix {

using Layer = LayerShellQt::Window;

namespace {

constexpr std::int32_t besidePanels = 0;
constexpr std::int32_t overPanels = -1;

} // namespace

LayerShellQt::Window* layerOf(QWidget& window) {
    window.winId(); // there is no window to speak of before
    Layer* layer = Layer::get(window.windowHandle());
    layer->setLayer(Layer::LayerOverlay);
    layer->setKeyboardInteractivity(Layer::KeyboardInteractivityOnDemand);
    layer->setScope(QStringLiteral("vantrix"));
    return layer;
}

LayerCover::LayerCover(QScreen& screen) {
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setScreen(&screen);
    resize(1, 1);
    layer_ = layerOf(*this);
    layer_->setAnchors({Layer::AnchorTop, Layer::AnchorBottom, Layer::AnchorLeft, Layer::AnchorRight});
    layer_->setExclusiveZone(besidePanels);
    layer_->setKeyboardInteractivity(Layer::KeyboardInteractivityNone);
}

void LayerCover::refuseFocus() {
    layer_->setKeyboardInteractivity(Layer::KeyboardInteractivityNone);
}

void LayerCover::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (size() == QSize(1, 1) || free_.isValid())
        return;
    free_ = size();
    QMetaObject::invokeMethod(this, &LayerCover::coverPanels, Qt::QueuedConnection);
}

/// Shown anew, because not every compositor looks where the pointer is when a window grows.
void LayerCover::coverPanels() {
    hide();
    layer_->setExclusiveZone(overPanels);
    layer_->setKeyboardInteractivity(Layer::KeyboardInteractivityOnDemand); // makes all compositors look there at once
    show();
}

void LayerCover::enterEvent(QEnterEvent* event) {
    const QSize missing = screen()->size() - size();
    if (missing.width() <= rounding && missing.height() <= rounding) // or it still lies somewhere beside the panels
        Q_EMIT entered(event->position().toPoint());
}

void LayerCover::mousePressEvent(QMouseEvent* event) {
    Q_EMIT pressed(event->position().toPoint(), event->button(), event->modifiers());
}

void LayerCover::mouseReleaseEvent(QMouseEvent* event) {
    if (event->buttons() == Qt::NoButton)
        Q_EMIT released();
}

} // namespace vantrix
