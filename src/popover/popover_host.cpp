#include "popover/popover_host.h"

#include <algorithm>
#include <cmath>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

namespace vantrix {
namespace {

constexpr int screenMargin = 30;
constexpr int leastHeight = 480;
constexpr int heightWithoutScreen = 870;
constexpr int gap = 4;            // between the status item and the popover
constexpr qint64 sameClick = 250; // milliseconds between a click's press and its release

QScreen* screenOf(const QRect& anchor) {
    QScreen* screen = QGuiApplication::screenAt(anchor.center());
    return screen ? screen : QGuiApplication::primaryScreen();
}

} // namespace

int popoverHeight(double visibleHeight) {
    if (visibleHeight <= 0.0)
        return heightWithoutScreen;
    return std::max(static_cast<int>(std::lround(visibleHeight)) - screenMargin, leastHeight);
}

QRect popoverPlace(const QSize& size, const QRect& anchor, const QRect& visible) {
    QRect place(QPoint(), size);
    place.moveLeft(anchor.center().x() - size.width() / 2);
    const int below = anchor.bottom() + 1 + gap;
    const int above = anchor.top() - gap - size.height();
    place.moveTop(below + size.height() <= visible.bottom() + 1 ? below : above);
    // A panel on the left or right edge leaves no room below or above: then the edges of the screen decide.
    place.moveRight(std::min(place.right(), visible.right()));
    place.moveLeft(std::max(place.left(), visible.left()));
    place.moveBottom(std::min(place.bottom(), visible.bottom()));
    place.moveTop(std::max(place.top(), visible.top()));
    return place;
}

class PopoverHost::ClosingFilter : public QObject {
  public:
    bool eventFilter(QObject* object, QEvent* event) override {
        auto* view = static_cast<QWidget*>(object);
        if (event->type() == QEvent::Hide)
            sinceHidden.start();
        if (event->type() == QEvent::WindowDeactivate)
            view->hide();
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel))
            view->hide();
        return false;
    }

    QElapsedTimer sinceHidden;
};

PopoverHost::PopoverHost(std::unique_ptr<QWidget> view)
    : view_(std::move(view)), filter_(std::make_unique<ClosingFilter>()) {
    view_->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    view_->installEventFilter(filter_.get());
}

PopoverHost::~PopoverHost() {
    view_->removeEventFilter(filter_.get());
}

void PopoverHost::show(const QRect& anchor) {
    const QScreen* screen = screenOf(anchor);
    const QRect visible = screen ? screen->availableGeometry() : QRect();
    const QSize wanted = view_->sizeHint();
    const QSize size(wanted.width(), std::min(wanted.height(), popoverHeight(visible.height())));
    view_->setGeometry(screen ? popoverPlace(size, anchor, visible) : QRect(anchor.bottomLeft(), size));
    view_->show();
    view_->activateWindow();
    view_->setFocus();
}

void PopoverHost::close() {
    view_->hide();
}

void PopoverHost::toggle(const QRect& anchor) {
    if (isShown())
        return close();
    if (filter_->sinceHidden.isValid() && filter_->sinceHidden.elapsed() < sameClick)
        return;
    show(anchor);
}

} // namespace vantrix
