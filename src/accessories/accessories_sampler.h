#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "accessories/accessory_battery.h"

namespace vantrix {

/// The slow scan for accessories' batteries.
class AccessoriesSampler {
  public:
    struct Scan {
        std::vector<AccessoryBattery> accessories;
        std::string diagnostics; ///< how the scan went, for a bug report
    };

    virtual ~AccessoriesSampler() = default;
    /// May block for seconds; called off the main thread, never twice at once.
    virtual Scan scan() = 0;
};

/// How a scan went: `origin`, the number of entries, then each with its level and the names of `others`, which tell
/// none: "power_supply: 2: Mouse 64%, Pen 5%, Pad [no value]".
std::string accessoriesDiagnostics(std::string_view origin, const std::vector<AccessoryBattery>& accessories,
                                   const std::vector<std::string>& others);

/// One entry per device (and one for its case): every live reading, and what the scan found of devices that have none.
/// Scanned devices come first; a device's place is that of its first mention. Entries are of one device when their
/// addresses are the same, or their names where an address is unknown.
std::vector<AccessoryBattery> combineAccessories(const std::vector<AccessoryBattery>& scanned,
                                                 const std::vector<AccessoryBattery>& live);

} // namespace vantrix
