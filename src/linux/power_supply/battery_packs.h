#pragma once

#include <optional>
#include <span>

#include "linux/power_supply/power_supply.h"
#include "support/properties.h"

namespace vantrix {

/// What the machine's packs are together.
struct BatteryPacks {
    Properties source;  ///< the power source as the battery sampler wants it described
    Properties battery; ///< its registers
};

/// False for a pack whose driver knows nothing of its charge.
bool tellsLevel(const SupplyState& pack);

/// Several packs are one power source, each weighted by what it holds. `packs` are those that are present and tell
/// their level, at least one. `isExternalOnline` tells whether power comes in; absent on a machine that has nothing to
/// tell it.
BatteryPacks combinePacks(std::span<const SupplyState> packs, std::optional<bool> isExternalOnline);

} // namespace vantrix
