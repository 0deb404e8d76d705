#pragma once

#include <functional>
#include <memory>

class QMenu;
class QWidget;

namespace vantrix {

class StatusItem;
class Theme;

/// Shows the popover beside the status item. Its view is made when it is first shown, and kept; closing only hides it.
/// Main thread only.
class PopoverWindow {
  public:
    using MakeView = std::function<std::unique_ptr<QWidget>()>;

    virtual ~PopoverWindow() = default;

    virtual bool isShown() const = 0;
    virtual void show(const StatusItem& item) = 0;
    virtual void close() = 0;

    /// Closes the popover if it is shown, else opens it; does nothing when the same click has just closed it.
    virtual void toggle(const StatusItem& item) = 0;

    /// Shows `menu` where the popover would open, and returns at once; false where the program places it itself. The
    /// popover is closed.
    virtual bool popUp(QMenu& /*menu*/, const StatusItem& /*item*/) { return false; }
};

/// The popover of this system. `theme` outlives it.
std::unique_ptr<PopoverWindow> makePopoverWindow(const Theme& theme, PopoverWindow::MakeView makeView);

} // namespace vantrix
