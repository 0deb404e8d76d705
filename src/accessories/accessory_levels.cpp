#include "accessories/accessory_levels.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "support/localization.h"

namespace vantrix {

std::optional<int> AccessoryLevels::main() const {
    if (single || combined)
        return single ? single : combined;
    if (left && right)
        return std::min(*left, *right);
    return left ? left : right;
}

std::optional<int> publishedLevel(int percent) {
    return percent > 0 ? std::optional(percent) : std::nullopt;
}

void appendAccessory(std::vector<AccessoryReading>& list, AccessoryReading accessory, const AccessoryLevels& levels) {
    if (const auto level = levels.main()) {
        accessory.battery.percent = boundedPercent(*level);
        list.push_back(accessory);
    }
    if (!levels.box)
        return;
    std::string name = formatted(localized("%@ case"), {std::string_view(accessory.battery.name)});
    accessory.battery = {std::move(name), boundedPercent(*levels.box), false, "earbuds.case"};
    accessory.isCase = true;
    list.push_back(std::move(accessory));
}

} // namespace vantrix
