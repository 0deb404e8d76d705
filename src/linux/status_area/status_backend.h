#pragma once

#include <QRect>

namespace vantrix {

class StatusRow;

/// One way to put the row on the screen. Destroying it takes the row away. Main thread only.
class StatusBackend {
  public:
    virtual ~StatusBackend() = default;

    /// Shows `row`; also called with an unchanged row after the desktop's colours changed.
    virtual void show(const StatusRow& row) = 0;

    /// Called once a pass, whether or not the row is another one.
    virtual void lookAround() {}

    /// Keeps the tool tip away from the open popover, where panels draw it above.
    virtual void popoverShown(bool /*shown*/) {}

    /// The rectangle beside which the popover and the menu open, in device-independent pixels.
    virtual QRect anchor() const = 0;
    /// True when that is no guess.
    virtual bool placeIsKnown() const { return true; }
};

} // namespace vantrix
