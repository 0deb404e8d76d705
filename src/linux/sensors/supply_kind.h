#pragma once

#include <string>
#include <vector>

namespace vantrix {

/// What an entry of <sys>/class/power_supply is.
enum class SupplyKind {
    battery,   ///< a pack of the machine
    external,  ///< the mains, or a port that takes power
    accessory, ///< the battery of a keyboard, mouse, …
    other,
};

/// From the entry's files type and scope, which do not change while a battery lives.
SupplyKind supplyKind(const std::string& folder);

/// The names of the entries of one kind, sorted.
std::vector<std::string> suppliesOf(const std::string& sys, SupplyKind kind);

} // namespace vantrix
