#pragma once

#include <optional>

#include "support/wall_clock.h"

namespace vantrix {

class UserDefaults;
class WidgetCenter;
struct Readings;

/// Hands the readings to the program's widgets. Main thread only.
class WidgetBridge {
  public:
    /// Seconds between two announcements.
    static constexpr double reloadPeriod = 60.0;

    /// `center` and `defaults` outlive the bridge. Without a centre it does nothing.
    WidgetBridge(WidgetCenter* center, const UserDefaults& defaults, WallClock clock = secondsSince2001);

    /// To be called after every pass: stores a snapshot, unless a number in it is not finite, and announces it where
    /// the last announcement is old enough.
    void update(const Readings& readings);

  private:
    WidgetCenter* center_;
    const UserDefaults& defaults_;
    WallClock clock_;
    std::optional<double> lastReload_; // absent: the distant past
};

} // namespace vantrix
