#pragma once

#include <memory>

#include <QPointer>

#include "linux/layer_shell/layer_stage.h"
#include "platform/popover_window.h"
#include "platform/status_item.h"
#include "popover/popover_frame.h"

class QMenu;

namespace vantrix {

/// The popover in a window that a Wayland compositor places beside its panels.
class LayerPopover : public PopoverWindow {
  public:
    /// `theme` outlives it.
    LayerPopover(const Theme& theme, MakeView makeView);
    ~LayerPopover() override;

    bool isShown() const override { return frame_ && frame_->isVisible(); }
    void show(const StatusItem& item) override;
    void close() override;
    void toggle(const StatusItem& item) override;
    bool popUp(QMenu& menu, const StatusItem& item) override;

  private:
    void open(const StatusItem& item, bool isClicked);
    void makeFrame();
    void place();
    void takePress(const LayerSpot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

    const Theme& theme_;
    MakeView makeView_;
    LayerStage stage_;
    std::unique_ptr<PopoverFrame> frame_;
    const StatusItem* item_ = nullptr; ///< that it was opened from
    LayerSpot spot_;                   ///< where it was opened
    bool isOpening_ = false;
};

} // namespace vantrix
