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

LayerCover::LayerCover(QScreen& screen) : covered_(&screen) {
    setWindowFlags(Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    resize(1, 1);
    layer_ = layerOf(*this);
    windowHandle()->setScreen(&screen); // not before there is a window, whose position would choose its screen
    layer_->setAnchors({Layer::AnchorTop, Layer::AnchorBottom, Layer::AnchorLeft, Layer::AnchorRight});
    layer_->setExclusiveZone(besidePanels);
    layer_->setKeyboardInteractivity(Layer::KeyboardInteractivityNone);
}

void LayerCover::refuseFocus() {
    refusesFocus_ = true;
    layer_->setKeyboardInteractivity(Layer::KeyboardInteractivityNone);
    update(); // takes effect with the next picture
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
    if (!refusesFocus_) // the focus makes all compositors look at once where the pointer is
        layer_->setKeyboardInteractivity(Layer::KeyboardInteractivityOnDemand);
    show();
}

void LayerCover::enterEvent(QEnterEvent* event) {
    const QSize missing = covered_ ? covered_->size() - size() : QSize();
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
