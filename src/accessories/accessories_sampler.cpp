#include "accessories/accessories_sampler.h"

#include "support/text_format.h"

namespace vantrix {

std::string accessoriesDiagnostics(std::string_view origin, const std::vector<AccessoryReading>& accessories,
                                   const std::vector<std::string>& others) {
    std::string list;
    for (const AccessoryReading& accessory : accessories)
        appendToList(list, namedLevel(accessory.battery));
    for (const std::string& name : others)
        appendToList(list, name + " [no value]");
    return std::string(origin) + ": " + std::to_string(accessories.size()) + (list.empty() ? "" : ": " + list);
}

} // namespace vantrix
