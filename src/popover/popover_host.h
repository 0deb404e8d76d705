#pragma once

#include <functional>
#include <memory>

#include <QRect>
#include <QVariantAnimation>

#include "platform/desktop_services.h"
#include "platform/popover_window.h"
#include "platform/status_item.h"
#include "popover/popover_frame.h"

class QScreen;

namespace vantrix {

class Theme;

/// The popover in a window of the toolkit's, which is made when it is first shown, and kept. It is as tall as its view
/// wants to be, as far as the screen allows, and follows it while it is open.
class PopoverHost : public PopoverWindow {
  public:
    /// `theme` outlives the host. `canFade` says whether this display can fade windows in.
    PopoverHost(const Theme& theme, MakeView makeView, std::function<bool()> canFade = windowsCanFade);
    ~PopoverHost() override;

    bool isShown() const override { return frame_ && frame_->isVisible(); }
    bool isFading() const { return fade_.state() == QAbstractAnimation::Running; }
    /// `anchor` is the status item's rectangle, in device-independent pixels.
    void show(const QRect& anchor);
    void show(const StatusItem& item) override { show(item.anchor()); }
    void close() override;
    void toggle(const QRect& anchor);
    void toggle(const StatusItem& item) override { toggle(item.anchor()); }

  private:
    void makeFrame();
    QScreen* screen() const;
    void watch(QScreen& screen);
    void place();
    void follow();
    void fadeIn();

    const Theme& theme_;
    MakeView makeView_;
    std::function<bool()> canFade_;
    std::unique_ptr<PopoverFrame> frame_;
    QRect anchor_;           ///< the status item's rectangle when it was last shown
    QVariantAnimation fade_; ///< of the frame's opacity
};

} // namespace vantrix
