#include "linux/power_supply/pack_content.h"

#include <cmath>

#include "linux/sensors/supply_power.h"

namespace vantrix {
namespace {

using Status = SupplyState::Status;

double valueOf(std::optional<std::int64_t> value) {
    return static_cast<double>(value.value_or(0));
}

/// What the pack is rated for; 0 when nothing tells.
double volts(const SupplyState& pack) {
    const double rated = valueOf(pack[SupplyState::voltageMinDesign]);
    return (rated > 0.0 ? rated : valueOf(pack[SupplyState::voltageNow])) * 1e-6;
}

/// Absent when the driver does not count in `unit`. Of what a pack holds now, its percentage tells enough.
std::optional<PackContent> toldContent(const SupplyState& pack, PackUnit unit) {
    const bool isEnergy = unit == PackUnit::energy;
    const double full = valueOf(pack[isEnergy ? SupplyState::energyFull : SupplyState::chargeFull]);
    const auto now = pack[isEnergy ? SupplyState::energyNow : SupplyState::chargeNow];
    const auto capacity = pack[SupplyState::capacity];
    if (full <= 0.0 || !(now || capacity))
        return std::nullopt;
    return PackContent{now ? valueOf(now) : valueOf(capacity) / 100.0 * full, full,
                       valueOf(pack[isEnergy ? SupplyState::energyFullDesign : SupplyState::chargeFullDesign])};
}

/// Absent when the driver counts in another unit, and the voltage between the two is unknown.
std::optional<PackContent> contentOf(const SupplyState& pack, PackUnit unit) {
    const auto told = toldContent(pack, unit);
    const double voltage = volts(pack);
    if (told || voltage <= 0.0)
        return told;
    const bool isEnergy = unit == PackUnit::energy;
    const auto other = toldContent(pack, isEnergy ? PackUnit::charge : PackUnit::energy);
    return other ? std::optional(*other * (isEnergy ? voltage : 1.0 / voltage)) : std::nullopt;
}

/// With the sign that the driver gives it; absent when it cannot be told in `unit`.
std::optional<double> toldFlow(const SupplyState& pack, PackUnit unit) {
    const auto power = pack[SupplyState::powerNow];
    const auto current = pack[SupplyState::currentNow];
    const auto voltage = pack[SupplyState::voltageNow];
    if (unit == PackUnit::energy)
        return supplyFlow(power, current, voltage);
    if (current || !power || valueOf(voltage) <= 0.0)
        return current;
    return valueOf(power) / valueOf(voltage) * 1e6;
}

/// Positive into the pack. Drivers differ on the sign; the status decides where it says a direction.
std::optional<double> flowInto(const SupplyState& pack, PackUnit unit) {
    const auto flow = toldFlow(pack, unit);
    if (flow && pack.status == Status::charging)
        return std::abs(*flow);
    if (flow && pack.status == Status::discharging)
        return -std::abs(*flow);
    return flow;
}

} // namespace

std::optional<PackContent> contentOf(std::span<const SupplyState> packs, PackUnit unit) {
    std::optional<PackContent> sum;
    for (const SupplyState& pack : packs) {
        const auto content = contentOf(pack, unit);
        if (!content)
            return std::nullopt;
        if (sum)
            *sum += *content;
        else
            sum = content;
    }
    return sum;
}

std::optional<PackContent> contentOf(std::span<const SupplyState> packs) {
    const auto energy = contentOf(packs, PackUnit::energy);
    return energy ? energy : contentOf(packs, PackUnit::charge);
}

std::optional<double> flowInto(std::span<const SupplyState> packs, PackUnit unit) {
    std::optional<double> sum;
    for (const SupplyState& pack : packs) {
        if (pack[SupplyState::powerNow].value_or(0) == 0 && pack[SupplyState::currentNow].value_or(0) == 0)
            continue;
        const auto flow = flowInto(pack, unit);
        if (!flow)
            return std::nullopt;
        sum = sum.value_or(0.0) + *flow;
    }
    return sum;
}

std::optional<double> levelOf(const SupplyState& pack) {
    if (const auto capacity = pack[SupplyState::capacity])
        return valueOf(capacity);
    const auto content = contentOf({&pack, 1});
    return content ? std::optional(content->now / content->full * 100.0) : std::nullopt;
}

} // namespace vantrix
