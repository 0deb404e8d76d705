#pragma once

#include <optional>
#include <span>

#include "linux/power_supply/power_supply.h"

namespace vantrix {

/// What drivers count in: energy (µWh, and µW for what flows) or charge (µAh and µA).
enum class PackUnit { energy, charge };

/// What packs hold, in one unit.
struct PackContent {
    double now = 0.0;
    double full = 0.0;
    double design = 0.0; ///< 0 when unknown

    PackContent& operator+=(const PackContent& other) {
        design = design > 0.0 && other.design > 0.0 ? design + other.design : 0.0;
        now += other.now;
        full += other.full;
        return *this;
    }
    PackContent operator*(double factor) const { return {now * factor, full * factor, design * factor}; }
};

/// The sum over `packs`; where a driver counts in the other unit, at the voltage that the pack is rated for. Absent
/// when one pack cannot be told in `unit`: a sum without it would be wrong.
std::optional<PackContent> contentOf(std::span<const SupplyState> packs, PackUnit unit);

/// In the first unit that all packs can be told in.
std::optional<PackContent> contentOf(std::span<const SupplyState> packs);

/// What flows into `packs`, negative for what flows out. Absent when nothing is told to flow, and when some of it
/// cannot be told in `unit`.
std::optional<double> flowInto(std::span<const SupplyState> packs, PackUnit unit);

/// Percent; absent for a pack whose driver knows nothing of its charge.
std::optional<double> levelOf(const SupplyState& pack);

} // namespace vantrix
