#include "popover/popover_host.h"

#include <QApplication>
#include <QScreen>

#include "popover/popover_place.h"
#include "popover/popover_view.h"
#include "views/theme.h"

namespace vantrix {
namespace {

constexpr int fadeDuration = 120;  // milliseconds
constexpr qint64 sameClick = 300;  // milliseconds from a click's press until a status area tells of it
constexpr int mouseInterval = 20;  // milliseconds
constexpr int ticksUntilTold = 15; // from the release of a button until a status area has told of the click

} // namespace

PopoverHost::PopoverHost(const Theme& theme, MakeView makeView, PopoverDisplay display)
    : theme_(theme), makeView_(std::move(makeView)), display_(std::move(display)) {
    mouseTimer_.setInterval(mouseInterval);
    QObject::connect(&mouseTimer_, &QTimer::timeout, &mouseTimer_, [this] { watchMouse(); });
    fade_.setStartValue(0.0);
    fade_.setEndValue(1.0);
    fade_.setDuration(fadeDuration);
    fade_.setEasingCurve(QEasingCurve::OutCubic);
}

PopoverHost::~PopoverHost() = default;

void PopoverHost::makeFrame() {
    frame_ = std::make_unique<PopoverFrame>(theme_, makeView_());
    // Compositors that lay out their windows like tiles leave those alone that cannot be made wider.
    frame_->setFixedWidth(PopoverView::contentWidth);
    frame_->setMinimumHeight(1);
    QObject::connect(&fade_, &QVariantAnimation::valueChanged, frame_.get(),
                     [this](const QVariant& opacity) { frame_->setWindowOpacity(opacity.toDouble()); });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, frame_.get(), &QWidget::hide);
    QObject::connect(frame_.get(), &PopoverFrame::opening, frame_.get(), [this] { place(); });
    QObject::connect(frame_.get(), &PopoverFrame::contentChanged, frame_.get(), [this] { follow(); });
    QObject::connect(frame_.get(), &PopoverFrame::closed, &fade_, &QVariantAnimation::stop);
    QObject::connect(frame_.get(), &PopoverFrame::closed, frame_.get(), [this] {
        input_.reset();
        if (item_)
            item_->popoverShown(false);
    });
    QObject::connect(frame_.get(), &PopoverFrame::lostFocus, frame_.get(), [this] { sinceFocusLost_.start(); });
    QObject::connect(frame_.get(), &PopoverFrame::pressedOutside, frame_.get(),
                     [this](QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
                         const auto kind =
                             button == Qt::RightButton ? StatusClick::Button::right : StatusClick::Button::left;
                         closedByPress(place, {kind, modifiers.testFlag(Qt::ControlModifier)});
                     });
}

/// The popover has the mouse to itself: nobody else is told of the press.
void PopoverHost::closedByPress(QPoint place, const StatusClick& click) {
    closingPress_ = place;
    sinceFocusLost_.invalidate(); // it lost that by the press
    ticksReleased_ = 0;
    mouseTimer_.start();
    const bool wantsMenu = click.button == StatusClick::Button::right || click.control;
    if (wantsMenu && item_ && item_->anchor().contains(place))
        item_->click(click);
}

/// Many status areas tell of a click when its button is released, which may be long after its press, and a busy one a
/// little later. What they tell of after that, or when a button was pressed again, is another click.
void PopoverHost::watchMouse() {
    const bool pressed = display_.isMousePressed();
    const bool again = pressed && ticksReleased_ > 0;
    ticksReleased_ = pressed ? 0 : ticksReleased_ + 1;
    if (!again && ticksReleased_ < ticksUntilTold)
        return;
    mouseTimer_.stop();
    closingPress_.reset();
}

/// Whether a click on the item at `anchor` is the one that has just closed the popover; asked once a click.
bool PopoverHost::isOfClosingClick(const QRect& anchor) {
    const bool wasPressed = closingPress_ && anchor.contains(*closingPress_);
    const bool lostFocus = sinceFocusLost_.isValid() && sinceFocusLost_.elapsed() < sameClick;
    closingPress_.reset();
    sinceFocusLost_.invalidate();
    return wasPressed || lostFocus;
}

void PopoverHost::show(const QRect& anchor) {
    if (!frame_)
        makeFrame();
    anchor_ = anchor;
    if (QScreen* shownOn = screen())
        watch(*shownOn);
    if (isShown())
        place();
    closingPress_.reset();
    sinceFocusLost_.invalidate();
    if (display_.canFade() && !theme_.reducesMotion())
        fadeIn();
    else
        frame_->setWindowOpacity(1.0);
    if (!input_)
        input_ = display_.takeInput(item_ && item_->placeIsKnown(), [this] { inputLost(); });
    if (item_)
        item_->popoverShown(true);
    frame_->show();
    frame_->raise();
    frame_->activateWindow();
    frame_->setFocus(Qt::PopupFocusReason);
}

void PopoverHost::inputLost() {
    while (QWidget* popup = QApplication::activePopupWidget()) // a menu of the popover's first
        popup->close();
    sinceFocusLost_.start();
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
    const QSize size(PopoverView::contentWidth, popoverHeight(visible.height(), frame_->contentHeight()));
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
        close();
    else if (!isOfClosingClick(anchor))
        show(anchor);
}

void PopoverHost::show(const StatusItem& item) {
    item_ = &item;
    show(item.anchor());
}

void PopoverHost::toggle(const StatusItem& item) {
    item_ = &item;
    toggle(item.anchor());
}

} // namespace vantrix
