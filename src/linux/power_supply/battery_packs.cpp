#include "linux/power_supply/battery_packs.h"

#include <algorithm>
#include <cmath>

#include "linux/sensors/supply_power.h"

namespace vantrix {
namespace {

using Status = SupplyState::Status;

/// Energy in µWh; drivers that count charge are asked for it at the voltage the pack is rated for.
struct Energy {
    double now = 0.0;
    double full = 0.0;
    double design = 0.0; ///< 0 when unknown

    Energy& operator+=(const Energy& other) {
        now += other.now;
        full += other.full;
        design += other.design;
        return *this;
    }
};

double valueOf(std::optional<std::int64_t> value) {
    return static_cast<double>(value.value_or(0));
}

double microvolts(const SupplyState& pack) {
    const double rated = valueOf(pack[SupplyState::voltageMinDesign]);
    return rated > 0.0 ? rated : valueOf(pack[SupplyState::voltageNow]);
}

/// Absent when the driver tells neither energy nor charge.
std::optional<Energy> energyOf(const SupplyState& pack) {
    const auto isFull = [](std::optional<std::int64_t> full) { return full.value_or(0) > 0; };
    if (pack[SupplyState::energyNow] && isFull(pack[SupplyState::energyFull]))
        return Energy{valueOf(pack[SupplyState::energyNow]), valueOf(pack[SupplyState::energyFull]),
                      valueOf(pack[SupplyState::energyFullDesign])};
    const double volts = microvolts(pack) / 1e6;
    if (!pack[SupplyState::chargeNow] || !isFull(pack[SupplyState::chargeFull]) || volts <= 0.0)
        return std::nullopt;
    return Energy{valueOf(pack[SupplyState::chargeNow]) * volts, valueOf(pack[SupplyState::chargeFull]) * volts,
                  valueOf(pack[SupplyState::chargeFullDesign]) * volts};
}

/// Percent.
std::optional<double> levelOf(const SupplyState& pack) {
    if (const auto capacity = pack[SupplyState::capacity])
        return valueOf(capacity);
    const auto energy = energyOf(pack);
    return energy ? std::optional(energy->now / energy->full * 100.0) : std::nullopt;
}

/// Absent when a pack does not tell; a sum without it would be wrong.
std::optional<Energy> sumOfEnergy(std::span<const SupplyState> packs) {
    Energy sum;
    bool isDesignKnown = true;
    for (const SupplyState& pack : packs) {
        const auto energy = energyOf(pack);
        if (!energy)
            return std::nullopt;
        sum += *energy;
        isDesignKnown &= energy->design > 0.0;
    }
    if (!isDesignKnown)
        sum.design = 0.0;
    return sum;
}

/// Power in µW, positive into the pack. Drivers differ on the sign; the status decides where it says a direction.
std::optional<double> flowInto(const SupplyState& pack) {
    const auto flow =
        supplyFlow(pack[SupplyState::powerNow], pack[SupplyState::currentNow], pack[SupplyState::voltageNow]);
    if (flow && pack.status == Status::charging)
        return std::abs(*flow);
    if (flow && pack.status == Status::discharging)
        return -std::abs(*flow);
    return flow;
}

std::optional<double> sumOfFlow(std::span<const SupplyState> packs) {
    std::optional<double> sum;
    for (const SupplyState& pack : packs) {
        if (const auto flow = flowInto(pack))
            sum = sum.value_or(0.0) + *flow;
    }
    return sum;
}

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

/// Minutes for `energy` (µWh) to move at `power` (µW), -1 when they cannot be told.
std::int64_t minutesFor(double energy, double power) {
    return power > 0.0 ? plausibleMinutes(std::max(energy, 0.0) / power * 60.0) : -1;
}

/// -1 when it cannot be told.
std::int64_t timeRemaining(std::span<const SupplyState> packs, const std::optional<Energy>& energy, bool isCharging) {
    const auto told = packs.front()[isCharging ? SupplyState::timeToFull : SupplyState::timeToEmpty];
    if (packs.size() == 1 && told.value_or(0) > 0)
        return plausibleMinutes(static_cast<double>(*told) / 60.0); // from seconds
    const auto flow = sumOfFlow(packs);
    if (!energy || !flow)
        return -1;
    return isCharging ? minutesFor(energy->full - energy->now, *flow) : minutesFor(energy->now, -*flow);
}

void describeLevel(Properties& source, std::span<const SupplyState> packs, const std::optional<Energy>& energy) {
    // The driver's own percentage is what every other program of the desktop shows.
    if (packs.size() == 1 && packs.front()[SupplyState::capacity]) {
        source.set("Current Capacity", *packs.front()[SupplyState::capacity]);
        return;
    }
    if (energy) {
        source.set("Current Capacity", energy->now);
        source.set("Max Capacity", energy->full);
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

Properties describeBattery(std::span<const SupplyState> packs, const std::optional<Energy>& energy) {
    Properties battery;
    std::int64_t cycles = 0;
    for (const SupplyState& pack : packs)
        cycles = std::max(cycles, pack[SupplyState::cycleCount].value_or(0));
    if (cycles > 0) // firmware that does not count says 0
        battery.set("CycleCount", cycles);
    if (energy && energy->design > 0.0) {
        battery.set("DesignCapacity", energy->design);
        battery.set("AppleRawMaxCapacity", energy->full);
    }
    describeHeat(battery, packs);
    // Several packs, and drivers that tell the power alone, have no one voltage: the current is that at one volt.
    if (const auto flow = sumOfFlow(packs)) {
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
    const auto energy = sumOfEnergy(packs);
    const bool isCharging = isAny(packs, Status::charging);
    const bool isPowered = isPluggedIn(packs, isExternalOnline);
    BatteryPacks combined;
    Properties& source = combined.source;
    source.set("Type", "InternalBattery");
    source.set("Is Charging", isCharging);
    source.set("Power Source State", isPowered ? "AC Power" : "Battery Power");
    describeLevel(source, packs, energy);
    // A battery that rests on the adapter has no time: neither does it fill nor does it empty.
    if (isCharging)
        source.set("Time to Full Charge", timeRemaining(packs, energy, true));
    else if (!isPowered || isAny(packs, Status::discharging))
        source.set("Time to Empty", timeRemaining(packs, energy, false));
    combined.battery = describeBattery(packs, energy);
    return combined;
}

} // namespace vantrix
