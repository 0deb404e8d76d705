#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "accessories/accessory_reading.h"

namespace vantrix {

/// The slow scan for accessories' batteries.
class AccessoriesSampler {
  public:
    struct Scan {
        std::vector<AccessoryReading> accessories;
        std::string diagnostics; ///< how the scan went, for a bug report
    };

    virtual ~AccessoriesSampler() = default;
    /// May block for seconds; called off the main thread, never twice at once.
    virtual Scan scan() = 0;
};

/// How a scan went: `origin`, the number of entries, each with its level, then the names of `others`, which have none:
/// "power_supply: 2: Mouse 64%, Pen 5%, Pad [no value]".
std::string accessoriesDiagnostics(std::string_view origin, const std::vector<AccessoryReading>& accessories,
                                   const std::vector<std::string>& others);

} // namespace vantrix
