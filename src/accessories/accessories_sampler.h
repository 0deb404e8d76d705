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

/// How a scan went: `origin`, the number of entries, each with its level, then the names of `others`, which have none:
/// "power_supply: 2: Mouse 64%, Pen 5%, Pad [no value]".
std::string accessoriesDiagnostics(std::string_view origin, const std::vector<AccessoryBattery>& accessories,
                                   const std::vector<std::string>& others);

/// One entry per device (and one for its case): its live reading, else what the scan found. In the order of first
/// mention, scanned devices before live ones. Two entries are of one device when their addresses are the same, or their
/// names where an address is unknown.
std::vector<AccessoryBattery> combineAccessories(const std::vector<AccessoryBattery>& scanned,
                                                 const std::vector<AccessoryBattery>& live);

} // namespace vantrix
