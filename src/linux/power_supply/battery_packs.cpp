#include "linux/power_supply/battery_packs.h"

#include <algorithm>
#include <cmath>

#include "linux/power_supply/pack_content.h"

namespace vantrix {
namespace {

using Status = SupplyState::Status;

bool isAny(std::span<const SupplyState> packs, Status status) {
    return std::any_of(packs.begin(), packs.end(), [=](const SupplyState& pack) { return pack.status == status; });
}

bool isPluggedIn(std::span<const SupplyState> packs, std::optional<bool> isExternalOnline) {
    if (isAny(packs, Status::charging) || isExternalOnline.value_or(false))
        return true;
    // Nothing tells of the mains: a pack that rests while none is drained does.
    return !isExternalOnline && !isAny(packs, Status::discharging) &&
           (isAny(packs, Status::full) || isAny(packs, Status::notCharging));
}

/// -1 beyond what anybody would believe.
std::int64_t plausibleMinutes(double minutes) {
    constexpr double longest = 100.0 * 60.0;
    return minutes <= longest ? static_cast<std::int64_t>(std::round(minutes)) : -1;
}

/// From what the packs hold and what flows; -1 when it cannot be told.
std::int64_t reckonedMinutes(std::span<const SupplyState> packs, PackUnit unit, bool isCharging) {
    const auto content = contentOf(packs, unit);
    const double flow = flowInto(packs, unit).value_or(0.0) * (isCharging ? 1.0 : -1.0);
    if (!content || flow <= 0.0)
        return -1;
    const double amount = isCharging ? content->full - content->now : content->now;
    return plausibleMinutes(std::max(amount, 0.0) / flow * 60.0);
}

/// -1 when it cannot be told. Other programs of the desktop reckon, too; a driver's own times are for where it tells
/// too little.
std::int64_t timeRemaining(std::span<const SupplyState> packs, bool isCharging) {
    for (const PackUnit unit : {PackUnit::energy, PackUnit::charge}) {
        if (const auto minutes = reckonedMinutes(packs, unit, isCharging); minutes >= 0)
            return minutes;
    }
    if (packs.size() > 1)
        return -1;
    for (const auto time : {isCharging ? SupplyState::timeToFull : SupplyState::timeToEmpty,
                            isCharging ? SupplyState::meanTimeToFull : SupplyState::meanTimeToEmpty}) {
        const double minutes = static_cast<double>(packs.front()[time].value_or(0)) / 60.0; // from seconds
        if (minutes > 0.0 && plausibleMinutes(minutes) >= 0)
            return plausibleMinutes(minutes);
    }
    return -1;
}

void describeLevel(Properties& source, std::span<const SupplyState> packs, const std::optional<PackContent>& content) {
    // The driver's own percentage is what every other program of the desktop shows.
    if (packs.size() == 1 && packs.front()[SupplyState::capacity]) {
        source.set("Current Capacity", *packs.front()[SupplyState::capacity]);
        return;
    }
    if (content) {
        source.set("Current Capacity", content->now);
        source.set("Max Capacity", content->full);
        return;
    }
    double sum = 0.0;
    for (const SupplyState& pack : packs)
        sum += levelOf(pack).value_or(0.0);
    source.set("Current Capacity", sum / static_cast<double>(packs.size()));
}

void describeHeat(Properties& battery, std::span<const SupplyState> packs) {
    constexpr std::int64_t hottest = 1500; // tenths of a degree; beyond it the sensor is broken
    std::int64_t tenths = 0;
    for (const SupplyState& pack : packs) {
        const auto temperature = pack[SupplyState::temperature].value_or(0);
        if (temperature <= hottest)
            tenths = std::max(tenths, temperature);
    }
    if (tenths > 0)
        battery.set("Temperature", tenths * 10);
}

Properties describeBattery(std::span<const SupplyState> packs, const std::optional<PackContent>& content) {
    Properties battery;
    std::int64_t cycles = 0;
    for (const SupplyState& pack : packs)
        cycles = std::max(cycles, pack[SupplyState::cycleCount].value_or(0));
    if (cycles > 0) // firmware that does not count says 0
        battery.set("CycleCount", cycles);
    if (content && content->design > 0.0) {
        battery.set("DesignCapacity", content->design);
        battery.set("AppleRawMaxCapacity", content->full);
    }
    describeHeat(battery, packs);
    // Several packs, and drivers that tell the power alone, have no one voltage: the current is that at one volt.
    if (const auto flow = flowInto(packs, PackUnit::energy)) {
        battery.set("Voltage", std::int64_t{1000});
        battery.set("Amperage", std::round(*flow / 1000.0));
    }
    return battery;
}

} // namespace

bool tellsLevel(const SupplyState& pack) {
    return levelOf(pack).has_value();
}

BatteryPacks combinePacks(std::span<const SupplyState> packs, std::optional<bool> isExternalOnline) {
    const auto content = contentOf(packs);
    const bool isCharging = isAny(packs, Status::charging);
    const bool isPowered = isPluggedIn(packs, isExternalOnline);
    BatteryPacks combined;
    Properties& source = combined.source;
    source.set("Type", "InternalBattery");
    source.set("Is Charging", isCharging);
    source.set("Power Source State", isPowered ? "AC Power" : "Battery Power");
    describeLevel(source, packs, content);
    // A battery that rests on the adapter has no time: neither does it fill nor does it empty.
    if (isCharging)
        source.set("Time to Full Charge", timeRemaining(packs, true));
    else if (!isPowered || isAny(packs, Status::discharging))
        source.set("Time to Empty", timeRemaining(packs, false));
    combined.battery = describeBattery(packs, content);
    return combined;
}

} // namespace vantrix
