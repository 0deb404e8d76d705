#pragma once

#include <functional>
#include <memory>

#include <QElapsedTimer>
#include <QRect>
#include <QWidget>

namespace vantrix {

/// The tallest the popover may be on a screen whose visible area is `visibleHeight` points high; 0: no screen.
int popoverHeight(double visibleHeight);

/// Where a popover of `size` opens: below `anchor` where it fits, else above or beside it, centred on it, wholly
/// inside `visible`.
QRect popoverPlace(const QSize& size, const QRect& anchor, const QRect& visible);

/// Shows the popover's view beside the status item and closes it when the user turns elsewhere.
class PopoverHost {
  public:
    explicit PopoverHost(std::unique_ptr<QWidget> view);
    ~PopoverHost();

    bool isShown() const { return view_->isVisible(); }
    void show(const QRect& anchor);
    void close();

    /// Closes a popover that is shown, and opens one that is not: unless the very click that asks for it has just
    /// closed it by landing outside.
    void toggle(const QRect& anchor);

  private:
    class ClosingFilter;

    std::unique_ptr<QWidget> view_;
    std::unique_ptr<ClosingFilter> filter_;
};

} // namespace vantrix
