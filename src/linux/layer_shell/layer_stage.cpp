#include "linux/layer_shell/layer_stage.h"

#include <algorithm>

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

#include "linux/layer_shell/layer_cover.h"
#include "linux/layer_shell/layer_place.h"

namespace vantrix {
namespace {

constexpr std::chrono::milliseconds patience{250};

QScreen* screenWith(const QPoint& point) {
    QScreen* screen = QGuiApplication::screenAt(point);
    return screen ? screen : QGuiApplication::primaryScreen();
}

} // namespace

LayerStage::~LayerStage() {
    uncover();
}

LayerSpot LayerStage::raise(bool isClicked, const QPoint& guess) {
    uncover();
    pointer_.reset();
    isPressed_ = isStruck_ = false;
    for (QScreen* screen : QGuiApplication::screens())
        cover(*screen);
    QEventLoop loop;
    for (LayerCover* covering : covers_)
        connect(covering, &LayerCover::entered, &loop, &QEventLoop::quit);
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    loop.exec();
    for (LayerCover* covering : covers_)
        covering->refuseFocus();
    if (isClicked) // a touch has no pointer
        clicked_ = pointer_ && pointer_->screen && isNearEdge(pointer_->point, pointer_->screen->size()) ? pointer_
                                                                                                         : std::nullopt;
    if (clicked_ && clicked_->screen)
        return spotAt(clicked_->screen, clicked_->point);
    QScreen* screen = screenWith(guess);
    return spotAt(screen, screen ? guess - screen->geometry().topLeft() : guess);
}

/// `screen` may be null.
LayerSpot LayerStage::spotAt(QScreen* screen, const QPoint& point) const {
    if (!screen)
        return {};
    const auto covering = std::find_if(covers_.begin(), covers_.end(),
                                       [&](const LayerCover* cover) { return cover->covered() == screen; });
    const bool isMeasured = covering != covers_.end() && (*covering)->free().isValid();
    return {screen, point, isMeasured ? (*covering)->free() : screen->size()};
}

void LayerStage::cover(QScreen& screen) {
    auto* covering = new LayerCover(screen);
    covers_.push_back(covering);
    connect(covering, &LayerCover::entered, this,
            [this, covering](QPoint place) { pointer_ = spotAt(covering->covered(), place); });
    connect(covering, &LayerCover::pressed, this,
            [this, covering](QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
                isPressed_ = true;
                Q_EMIT pressed(spotAt(covering->covered(), place), button, modifiers);
            });
    connect(covering, &LayerCover::released, this, [this] {
        isPressed_ = false;
        if (isStruck_)
            uncover();
    });
    covering->show();
}

void LayerStage::strike() {
    isStruck_ = true;
    if (!isPressed_)
        uncover();
}

void LayerStage::uncover() {
    for (LayerCover* covering : std::exchange(covers_, {})) {
        covering->hide();
        covering->deleteLater(); // it may be telling of an event
    }
}

} // namespace vantrix
