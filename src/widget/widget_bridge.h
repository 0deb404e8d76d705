#pragma once

#include <optional>
#include <string>

#include "monitor/readings.h"
#include "support/wall_clock.h"
#include "widget/shared_stats.h"

namespace vantrix {

class UserDefaults;
class WidgetCenter;

/// Hands the readings to the program's widgets. Main thread only.
class WidgetBridge {
  public:
    /// Seconds between two announcements.
    static constexpr double reloadPeriod = 60.0;

    /// `center` and `defaults` outlive the bridge. Without a centre it does nothing.
    WidgetBridge(WidgetCenter* center, const UserDefaults& defaults, WallClock clock = secondsSince2001);

    /// To be called after every pass: stores a snapshot, and announces it where the last announcement is old enough.
    void update(const Readings& readings);

    /// Stores one snapshot; one with a number that is not finite is dropped.
    void write(const SharedStats& stats);

  private:
    void condense(const Readings& readings, double now);

    WidgetCenter* center_;
    const UserDefaults& defaults_;
    WallClock clock_;
    std::optional<double> lastReload_; // absent: the distant past
    SharedStats stats_;                // kept, as is the text, for its memory alone
    std::string json_;
};

} // namespace vantrix
