#pragma once

#include <QRect>

namespace vantrix {

class StatusRow;

/// One way to put the row on the screen. Where it lives while it exists is its own affair: destroying it takes the
/// row away. Main thread only.
class StatusBackend {
  public:
    virtual ~StatusBackend() = default;

    /// Shows `row`; also called with an unchanged row after the desktop's colours changed.
    virtual void show(const StatusRow& row) = 0;

    /// Where popover and menu belong, in device-independent pixels.
    virtual QRect anchor() const = 0;
};

} // namespace vantrix
