#pragma once

#include <functional>
#include <memory>

#include <QRect>
#include <QVariantAnimation>

#include "platform/desktop_services.h"
#include "popover/popover_frame.h"

namespace vantrix {

class Theme;

/// Shows the popover beside the status item. Its window and its view are made when it is shown first, and are kept.
class PopoverHost {
  public:
    using MakeView = std::function<std::unique_ptr<QWidget>()>;

    /// `theme` outlives the host. `canFade` says whether windows of this display can be faded in.
    PopoverHost(const Theme& theme, MakeView makeView, std::function<bool()> canFade = windowsCanFade);
    ~PopoverHost();

    bool isShown() const { return frame_ && frame_->isVisible(); }
    bool isFading() const { return fade_.state() == QAbstractAnimation::Running; }
    /// `anchor` is the status item's rectangle, in device-independent pixels.
    void show(const QRect& anchor);
    void close();

    /// Closes a popover that is shown, and opens one that is not: unless the very click that asks for it has just
    /// closed it by landing outside.
    void toggle(const QRect& anchor);

  private:
    void makeFrame();
    void place(const QRect& anchor);
    void fadeIn();

    const Theme& theme_;
    MakeView makeView_;
    std::function<bool()> canFade_;
    std::unique_ptr<PopoverFrame> frame_;
    QVariantAnimation fade_; ///< of the frame's opacity
};

} // namespace vantrix
