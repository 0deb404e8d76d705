#include "widget/widget_bridge.h"

#include <utility>

#include "menubar/preferences.h"
#include "platform/widget_center.h"
#include "support/user_defaults.h"

namespace vantrix {

WidgetBridge::WidgetBridge(WidgetCenter* center, const UserDefaults& defaults, WallClock clock)
    : center_(center), defaults_(defaults), clock_(std::move(clock)) {}

void WidgetBridge::update(const Readings& readings) {
    if (!center_)
        return;
    const double now = clock_();
    condense(readings, now);
    write(stats_);
    if (!havePassed(reloadPeriod, lastReload_, now))
        return;
    lastReload_ = now;
    center_->reloadAllTimelines();
}

void WidgetBridge::write(const SharedStats& stats) {
    if (center_ && encode(stats, json_))
        center_->store("sharedStats", json_);
}

void WidgetBridge::condense(const Readings& readings, double now) {
    stats_.cpu = readings.cpu.total;
    stats_.memory = usedFraction(readings.memory);
    stats_.disk = usedFraction(readings.disk);
    stats_.download = readings.network.download;
    stats_.upload = readings.network.upload;
    stats_.gpu = readings.gpu;
    stats_.batteryPercent = readings.battery ? std::optional(readings.battery->percent) : std::nullopt;
    stats_.batteryCharging = readings.battery ? std::optional(readings.battery->isCharging) : std::nullopt;
    stats_.cpuTemperature = readings.sensors.cpu;
    stats_.warning = defaults_.number(preference_key::warningThreshold);
    stats_.critical = defaults_.number(preference_key::criticalThreshold);
    stats_.updated = now;
    stats_.accessories = readings.accessories;
}

} // namespace vantrix
