#include "widget/widget_bridge.h"

#include <utility>

#include "menubar/preferences.h"
#include "monitor/readings.h"
#include "platform/widget_center.h"
#include "support/user_defaults.h"
#include "widget/shared_stats.h"

namespace vantrix {
namespace {

SharedStats snapshotOf(const Readings& readings, const UserDefaults& defaults, double now) {
    SharedStats stats{.cpu = readings.cpu.total,
                      .memory = usedFraction(readings.memory),
                      .disk = usedFraction(readings.disk),
                      .download = readings.network.download,
                      .upload = readings.network.upload,
                      .gpu = readings.gpu,
                      .cpuTemperature = readings.sensors.cpu,
                      .warning = defaults.number(preference_key::warningThreshold),
                      .critical = defaults.number(preference_key::criticalThreshold),
                      .updated = now,
                      .accessories = readings.accessories};
    if (readings.battery) {
        stats.batteryPercent = readings.battery->percent;
        stats.batteryCharging = readings.battery->isCharging;
    }
    return stats;
}

} // namespace

WidgetBridge::WidgetBridge(WidgetCenter* center, const UserDefaults& defaults, WallClock clock)
    : center_(center), defaults_(defaults), clock_(std::move(clock)) {}

void WidgetBridge::update(const Readings& readings) {
    if (!center_)
        return;
    const double now = clock_();
    if (const auto json = encode(snapshotOf(readings, defaults_, now)))
        center_->store("sharedStats", *json);
    if (!havePassed(reloadPeriod, lastReload_, now))
        return;
    lastReload_ = now;
    center_->reloadAllTimelines();
}

} // namespace vantrix
