#pragma once

#include <string>
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

/// One entry per device: every live reading, and what the scan found of devices that have none. Scanned devices come
/// first; a device's place is that of its first mention.
std::vector<AccessoryBattery> combineAccessories(const std::vector<AccessoryBattery>& scanned,
                                                 const std::vector<AccessoryBattery>& live);

} // namespace vantrix
