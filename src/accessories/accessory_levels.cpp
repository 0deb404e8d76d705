#include "accessories/accessory_levels.h"

#include <algorithm>

namespace vantrix {
namespace {

constexpr std::string_view caseSuffix = " case";

} // namespace

std::optional<int> AccessoryLevels::main() const {
    if (single || combined)
        return single ? single : combined;
    if (left && right)
        return std::min(*left, *right);
    return left ? left : right;
}

void appendAccessory(std::vector<AccessoryBattery>& list, AccessoryBattery accessory, const AccessoryLevels& levels) {
    const std::string name = accessory.name;
    const std::string address = accessory.address;
    if (const auto level = levels.main()) {
        accessory.percent = boundedPercent(*level);
        list.push_back(std::move(accessory));
    }
    if (levels.box)
        list.push_back({name + std::string(caseSuffix), boundedPercent(*levels.box), false, "earbuds.case", address});
}

bool isCase(const AccessoryBattery& accessory) {
    return accessory.symbol == "earbuds.case" && accessory.name.ends_with(caseSuffix);
}

} // namespace vantrix
