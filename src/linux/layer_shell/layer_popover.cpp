#include "linux/layer_shell/layer_popover.h"

#include <algorithm>

#include <LayerShellQt/Window>
#include <QMenu>
#include <QWindow>

#include "linux/layer_shell/layer_cover.h"
#include "linux/layer_shell/layer_place.h"
#include "popover/popover_place.h"
#include "popover/popover_view.h"

namespace vantrix {
namespace {

/// Puts `window` there; it has its size, and is shown next or already.
void placeAt(QWidget& window, const LayerSpot& spot) {
    using Layer = LayerShellQt::Window;
    if (!spot.screen)
        return;
    const LayerPlace place = layerPlace(window.size(), spot.point, spot.screen->size(), spot.free);
    Layer* layer = layerOf(window);
    window.windowHandle()->setScreen(spot.screen);
    layer->setAnchors({place.edges.testFlag(Qt::LeftEdge) ? Layer::AnchorLeft : Layer::AnchorRight,
                       place.edges.testFlag(Qt::TopEdge) ? Layer::AnchorTop : Layer::AnchorBottom});
    layer->setMargins(place.margins);
}

} // namespace

LayerPopover::LayerPopover(const Theme& theme, MakeView makeView) : theme_(theme), makeView_(std::move(makeView)) {
    QObject::connect(&stage_, &LayerStage::pressed, &stage_,
                     [this](const LayerSpot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
                         takePress(spot, button, modifiers);
                     });
}

LayerPopover::~LayerPopover() = default;

void LayerPopover::makeFrame() {
    frame_ = std::make_unique<PopoverFrame>(theme_, makeView_());
    frame_->setWindowFlags(Qt::FramelessWindowHint); // nothing that the toolkit would place, or close by itself
    QObject::connect(frame_.get(), &PopoverFrame::opening, frame_.get(), [this] { place(); });
    QObject::connect(frame_.get(), &PopoverFrame::contentChanged, frame_.get(), [this] {
        if (isShown())
            place();
    });
    QObject::connect(frame_.get(), &PopoverFrame::closed, &stage_, &LayerStage::strike);
}

void LayerPopover::show(const StatusItem& item) {
    open(item, false);
}

void LayerPopover::open(const StatusItem& item, bool isClicked) {
    item_ = &item;
    if (isShown() || std::exchange(isOpening_, true))
        return;
    if (!frame_)
        makeFrame();
    spot_ = stage_.raise(isClicked, item.anchor().center());
    isOpening_ = false;
    frame_->show();
    frame_->activateWindow();
    frame_->setFocus(Qt::PopupFocusReason);
}

void LayerPopover::place() {
    const QSize screen = spot_.screen ? spot_.screen->size() : spot_.free;
    const int room = heightBeside(spot_.point, screen, spot_.free);
    frame_->resize(PopoverView::contentWidth,
                   std::min(popoverHeight(room, frame_->contentHeight()), spot_.free.height()));
    placeAt(*frame_, spot_);
}

void LayerPopover::close() {
    if (frame_)
        frame_->hide();
}

void LayerPopover::toggle(const StatusItem& item) {
    if (isShown())
        close();
    else
        open(item, true);
}

/// The panel is not told of a click on the item while the popover is open.
void LayerPopover::takePress(const LayerSpot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
    if (!isShown())
        return;
    close();
    const QPoint distance = spot.point - spot_.point;
    const bool isOnItem =
        spot.screen == spot_.screen && std::max(std::abs(distance.x()), std::abs(distance.y())) <= itemReach;
    const bool control = modifiers.testFlag(Qt::ControlModifier);
    if (isOnItem && item_ && (button == Qt::RightButton || control))
        item_->click({button == Qt::RightButton ? StatusClick::Button::right : StatusClick::Button::left, control});
}

bool LayerPopover::popUp(QMenu& menu, const StatusItem& item) {
    if (std::exchange(isOpening_, true))
        return true;
    close();
    const QPointer<QMenu> alive = &menu;
    const LayerSpot spot = stage_.raise(true, item.anchor().center());
    isOpening_ = false;
    if (!alive)
        return true;
    QObject::connect(&menu, &QMenu::aboutToHide, &stage_, &LayerStage::strike);
    menu.resize(menu.sizeHint());
    placeAt(menu, spot);
    menu.popup(QPoint());
    return true;
}

} // namespace vantrix
