#include "accessories/accessories_sampler.h"

#include <algorithm>

#include "accessories/accessory_levels.h"
#include "support/ascii_case.h"
#include "support/text_format.h"

namespace vantrix {
namespace {

/// "aa-bb-…" and "AA:BB:…" are one address.
std::string hexDigits(std::string_view address) {
    std::string digits = loweredASCII(address);
    std::erase_if(digits, [](char c) { return c == ':' || c == '-'; });
    return digits;
}

bool isSameDevice(const AccessoryBattery& a, const AccessoryBattery& b) {
    if (a.address.empty() || b.address.empty())
        return a.name == b.name;
    return isCase(a) == isCase(b) && hexDigits(a.address) == hexDigits(b.address);
}

} // namespace

std::string accessoriesDiagnostics(std::string_view origin, const std::vector<AccessoryBattery>& accessories,
                                   const std::vector<std::string>& others) {
    std::string list;
    for (const AccessoryBattery& accessory : accessories)
        appendToList(list, namedLevel(accessory));
    for (const std::string& name : others)
        appendToList(list, name + " [no value]");
    return std::string(origin) + ": " + std::to_string(accessories.size()) + (list.empty() ? "" : ": " + list);
}

std::vector<AccessoryBattery> combineAccessories(const std::vector<AccessoryBattery>& scanned,
                                                 const std::vector<AccessoryBattery>& live) {
    std::vector<AccessoryBattery> combined;
    combined.reserve(scanned.size() + live.size());
    const auto put = [&](const AccessoryBattery& accessory) {
        const auto known = std::find_if(combined.begin(), combined.end(),
                                        [&](const auto& other) { return isSameDevice(other, accessory); });
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
