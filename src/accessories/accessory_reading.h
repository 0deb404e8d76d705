#pragma once

#include <optional>
#include <string>
#include <vector>

#include "accessories/accessory_battery.h"

namespace vantrix {

/// What one source tells of an accessory's battery, with what tells the accessory from others; that is never shown.
struct AccessoryReading {
    AccessoryBattery battery;
    std::string address = {};    ///< the radio's, "AA:BB:CC:DD:EE:FF" or "aa-bb-…"; empty when unknown
    std::string identifier = {}; ///< what else the system knows the accessory by; empty when unknown
    bool isNamed = true;         ///< false when the name only says what kind of thing it is, or repeats its address
    bool isCase = false;         ///< the case that earbuds are carried in

    bool operator==(const AccessoryReading&) const = default;
};

/// Whether both are of one thing, by their addresses or else their identifiers; absent when they have neither in common
/// to compare, so that only their names are left.
std::optional<bool> haveOneIdentity(const AccessoryReading& a, const AccessoryReading& b);

/// What is shown of the readings, in their order.
std::vector<AccessoryBattery> batteriesOf(const std::vector<AccessoryReading>& readings);

/// One entry for each thing: the scanned ones in their order, then the live ones that were not scanned. Two readings
/// are of one thing when they have one identity or, where that cannot be told, one name. Each scanned reading has at
/// most one live partner, among namesakes those of the nearest levels, so that of two equal controllers both are
/// listed. A live reading renews the scanned level and name, and leaves its charging flag and symbol alone unless it
/// knows more.
std::vector<AccessoryReading> combineAccessories(const std::vector<AccessoryReading>& scanned,
                                                 const std::vector<AccessoryReading>& live);

} // namespace vantrix
