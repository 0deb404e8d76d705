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
    QObject::connect(frame_.get(), &PopoverFrame::opening, frame_.get(), [this] { place(); });
    QObject::connect(frame_.get(), &PopoverFrame::contentChanged, frame_.get(), [this] { follow(); });
    QObject::connect(frame_.get(), &PopoverFrame::closed, &fade_, &QVariantAnimation::stop);
}

void PopoverHost::show(const QRect& anchor) {
    if (!frame_)
        makeFrame();
    anchor_ = anchor;
    if (QScreen* shownOn = screen())
        watch(*shownOn);
    if (isShown())
        place();
    if (canFade_() && !theme_.reducesMotion())
        fadeIn();
    else
        frame_->setWindowOpacity(1.0);
    frame_->show();
    frame_->activateWindow();
    frame_->setFocus(Qt::PopupFocusReason);
}

QScreen* PopoverHost::screen() const {
    const QList<QScreen*> screens = QGuiApplication::screens();
    std::vector<QRect> places;
    for (const QScreen* screen : screens)
        places.push_back(screen->geometry());
    return screens.isEmpty() ? nullptr : screens[static_cast<qsizetype>(screenOf(anchor_, places))];
}

void PopoverHost::watch(QScreen& screen) {
    frame_->setScreen(&screen); // the place is meant in its scale factor
    // It would stand in the wrong place; the next click opens it in the right one.
    for (const auto moved : {&QScreen::availableGeometryChanged, &QScreen::geometryChanged})
        QObject::connect(&screen, moved, frame_.get(), &QWidget::hide, Qt::UniqueConnection);
}

void PopoverHost::place() {
    const QScreen* shownOn = screen();
    const QRect visible = shownOn ? shownOn->availableGeometry() : QRect();
    const QSize size(popoverWidth, popoverHeight(visible.height(), frame_->contentHeight()));
    frame_->setGeometry(shownOn ? popoverPlace(size, anchor_, visible) : QRect(anchor_.bottomLeft(), size));
}

void PopoverHost::follow() {
    const QScreen* shownOn = screen();
    if (!isShown() || !shownOn)
        return;
    const QRect visible = shownOn->availableGeometry();
    const int height = popoverHeight(visible.height(), frame_->contentHeight());
    frame_->setGeometry(resizedPlace(frame_->geometry(), height, anchor_, visible));
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
