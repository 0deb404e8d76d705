#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QElapsedTimer>
#include <QRect>
#include <QTimer>
#include <QVariantAnimation>

#include "platform/desktop_services.h"
#include "platform/popover_window.h"
#include "platform/popup_input.h"
#include "platform/status_item.h"
#include "popover/popover_frame.h"

class QScreen;

namespace vantrix {

class Theme;

/// What the host asks of the display; tests answer in its place.
struct PopoverDisplay {
    std::function<bool()> canFade = windowsCanFade;
    std::function<bool()> isMousePressed = mouseIsPressed;
    std::function<std::shared_ptr<void>(bool takesMouse, std::function<void()> lost)> takeInput = vantrix::takeInput;
};

/// The popover in a window of the toolkit's, which is made when it is first shown, and kept. It is as tall as its view
/// wants to be, as far as the screen allows, and follows it while it is open.
class PopoverHost : public PopoverWindow {
  public:
    /// `theme` outlives the host.
    PopoverHost(const Theme& theme, MakeView makeView, PopoverDisplay display = {});
    ~PopoverHost() override;

    bool isShown() const override { return frame_ && frame_->isVisible(); }
    bool isFading() const { return fade_.state() == QAbstractAnimation::Running; }
    /// `anchor` is the status item's rectangle, in device-independent pixels.
    void show(const QRect& anchor);
    void show(const StatusItem& item) override;
    void close() override;
    void toggle(const QRect& anchor);
    void toggle(const StatusItem& item) override;

  private:
    void makeFrame();
    QScreen* screen() const;
    void watch(QScreen& screen);
    void place();
    void follow();
    void fadeIn();
    void inputLost();
    void closedByPress(QPoint place, const StatusClick& click);
    void watchMouse();
    bool isOfClosingClick(const QRect& anchor);

    const Theme& theme_;
    MakeView makeView_;
    PopoverDisplay display_;
    std::unique_ptr<PopoverFrame> frame_;
    const StatusItem* item_ = nullptr;   ///< that it was opened from
    std::optional<QPoint> closingPress_; ///< on the screen; forgotten soon after the button is released
    QElapsedTimer sinceFocusLost_;       ///< valid when that closed it
    std::shared_ptr<void> input_;        ///< while it is open, where it has to be taken
    QTimer mouseTimer_;
    int ticksReleased_ = 0;
    QRect anchor_;           ///< the status item's rectangle when it was last shown
    QVariantAnimation fade_; ///< of the frame's opacity
};

} // namespace vantrix
