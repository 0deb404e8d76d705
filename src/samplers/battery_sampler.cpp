#include "samplers/battery_sampler.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "support/checked.h"

namespace vantrix {
namespace {

std::optional<int> fitting(std::optional<std::int64_t> value) {
    return value && std::in_range<int>(*value) ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

std::optional<int> minutesOf(const Properties& source, bool isCharging) {
    const auto minutes = fitting(source.integer(isCharging ? "Time to Full Charge" : "Time to Empty"));
    return minutes >= 0 ? minutes : std::nullopt; // negative while still estimated
}

int percentOf(const Properties& source) {
    const auto current = static_cast<double>(source.integer("Current Capacity").value_or(0));
    const auto max = static_cast<double>(std::max<std::int64_t>(source.integer("Max Capacity").value_or(100), 1));
    return static_cast<int>(std::clamp(std::round(current / max * 100.0), 0.0, 100.0));
}

BatterySample describe(const Properties& source) {
    BatterySample sample;
    sample.percent = percentOf(source);
    sample.isCharging = source.boolean("Is Charging").value_or(false);
    sample.isPluggedIn = source.text("Power Source State") == "AC Power";
    sample.minutesRemaining = minutesOf(source, sample.isCharging);
    return sample;
}

std::optional<int> healthOf(const Properties& battery) {
    const auto design = battery.integer("DesignCapacity");
    auto full = battery.integer("AppleRawMaxCapacity");
    if (!full)
        full = battery.integer("MaxCapacity");
    if (!design || !full || *design < 1 || *full <= *design / 4)
        return std::nullopt; // a quarter of the design or less is not believed
    const double health = static_cast<double>(*full) / static_cast<double>(*design) * 100.0;
    return static_cast<int>(std::min(std::round(health), 100.0));
}

std::optional<double> temperatureOf(const Properties& battery) {
    const auto hundredths = battery.integer("Temperature");
    if (!hundredths || *hundredths < 1)
        return std::nullopt;
    return static_cast<double>(*hundredths) / 100.0;
}

std::optional<double> wattsOf(const Properties& battery) {
    const auto voltage = battery.integer("Voltage");
    auto current = battery.integer("Amperage");
    if (!current)
        current = battery.integer("InstantAmperage");
    if (!voltage || !current)
        return std::nullopt;
    if (*current == std::numeric_limits<std::int64_t>::min())
        fatalError("the current of the battery overflows");
    const double watts = static_cast<double>(*voltage) * static_cast<double>(std::abs(*current)) / 1'000'000.0;
    return watts > 0.05 && watts < 400.0 ? std::optional(watts) : std::nullopt;
}

} // namespace

std::optional<BatterySample> BatterySampler::sample() {
    const auto sources = source_.powerSources();
    if (!sources)
        return std::nullopt;
    const auto internal = std::find_if(sources->begin(), sources->end(), [](const Properties& source) {
        return source.text("Type") == "InternalBattery";
    });
    if (internal == sources->end())
        return std::nullopt;
    BatterySample sample = describe(*internal);
    if (const Properties* battery = source_.smartBattery()) {
        sample.cycleCount = fitting(battery->integer("CycleCount"));
        sample.healthPercent = healthOf(*battery);
        sample.temperature = temperatureOf(*battery);
        sample.watts = wattsOf(*battery);
    }
    return sample;
}

} // namespace vantrix
