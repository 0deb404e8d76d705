#include "accessories/accessories_sampler.h"

#include <algorithm>

namespace vantrix {

std::vector<AccessoryBattery> combineAccessories(const std::vector<AccessoryBattery>& scanned,
                                                 const std::vector<AccessoryBattery>& live) {
    std::vector<AccessoryBattery> combined;
    combined.reserve(scanned.size() + live.size());
    const auto put = [&](const AccessoryBattery& accessory) {
        const auto known = std::find_if(combined.begin(), combined.end(),
                                        [&](const auto& other) { return other.name == accessory.name; });
        if (known == combined.end())
            combined.push_back(accessory);
        else
            *known = accessory;
    };
    std::for_each(scanned.begin(), scanned.end(), put);
    std::for_each(live.begin(), live.end(), put);
    return combined;
}

} // namespace vantrix
