#include "popover/popover_host.h"

#include <QGuiApplication>
#include <QScreen>

#include "popover/popover_place.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int popoverWidth = 340;
constexpr int fadeDuration = 120; // milliseconds
constexpr qint64 sameClick = 300; // milliseconds between a click's press and its release

QScreen* screenAt(const QRect& anchor) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    std::vector<QRect> places;
    for (const QScreen* screen : screens)
        places.push_back(screen->geometry());
    return screens.isEmpty() ? nullptr : screens[static_cast<qsizetype>(screenOf(anchor, places))];
}

} // namespace

PopoverHost::PopoverHost(const Theme& theme, MakeView makeView, std::function<bool()> canFade)
    : theme_(theme), makeView_(std::move(makeView)), canFade_(std::move(canFade)) {
    fade_.setStartValue(0.0);
    fade_.setEndValue(1.0);
    fade_.setDuration(fadeDuration);
    fade_.setEasingCurve(QEasingCurve::OutCubic);
}

PopoverHost::~PopoverHost() = default;

void PopoverHost::makeFrame() {
    frame_ = std::make_unique<PopoverFrame>(theme_, makeView_());
    QObject::connect(&fade_, &QVariantAnimation::valueChanged, frame_.get(),
                     [this](const QVariant& opacity) { frame_->setWindowOpacity(opacity.toDouble()); });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, frame_.get(), &QWidget::hide);
    QObject::connect(frame_.get(), &PopoverFrame::closed, &fade_, &QVariantAnimation::stop);
}

void PopoverHost::show(const QRect& anchor) {
    if (!frame_)
        makeFrame();
    place(anchor);
    if (canFade_() && !theme_.reducesMotion())
        fadeIn();
    else
        frame_->setWindowOpacity(1.0);
    frame_->show();
    frame_->activateWindow();
    frame_->setFocus(Qt::PopupFocusReason);
}

void PopoverHost::place(const QRect& anchor) {
    QScreen* screen = screenAt(anchor);
    const QRect visible = screen ? screen->availableGeometry() : QRect();
    const QSize size(popoverWidth, popoverHeight(visible.height()));
    if (screen) {
        frame_->setScreen(screen); // the place is meant in its scale factor
        // It would stand in the wrong place; the next click opens it in the right one.
        for (const auto moved : {&QScreen::availableGeometryChanged, &QScreen::geometryChanged})
            QObject::connect(screen, moved, frame_.get(), &QWidget::hide, Qt::UniqueConnection);
    }
    frame_->setGeometry(screen ? popoverPlace(size, anchor, visible) : QRect(anchor.bottomLeft(), size));
}

void PopoverHost::fadeIn() {
    frame_->setWindowOpacity(0.0);
    fade_.start();
}

void PopoverHost::close() {
    if (frame_)
        frame_->hide();
}

void PopoverHost::toggle(const QRect& anchor) {
    if (isShown())
        return close();
    if (frame_ && frame_->closedBySameClick(anchor, sameClick))
        return;
    show(anchor);
}

} // namespace vantrix
