#pragma once

#include <qnamespace.h>

#include "platform/status_item.h"

class QMouseEvent;

namespace vantrix {

/// What the event is to the status item; any button but the right and the middle one counts as the left.
StatusClick clickOf(const QMouseEvent& event);

/// The buttons that were pressed on a window. The press of a click that closes the popover goes to the popover alone:
/// its release must not open it again.
class PressedButtons {
  public:
    void press(const QMouseEvent& event);
    /// True when the button was pressed there as well.
    bool release(const QMouseEvent& event);

  private:
    Qt::MouseButtons pressed_;
};

} // namespace vantrix
