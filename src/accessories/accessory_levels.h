#pragma once

#include <optional>
#include <string>
#include <vector>

#include "accessories/accessory_reading.h"

namespace vantrix {

/// The levels that one accessory may report, in percent.
struct AccessoryLevels {
    std::optional<int> single;
    std::optional<int> combined;
    std::optional<int> left;
    std::optional<int> right;
    std::optional<int> box; ///< the case that earbuds are carried in

    /// The single level, else the combined one, else the smaller of left and right, else the one of them that is
    /// present; absent when there is none.
    std::optional<int> main() const;
};

/// The level that a value published by a classic Bluetooth device stands for. Absent for 0, which the system publishes
/// for every part that reported nothing.
std::optional<int> publishedLevel(int percent);

/// Appends the accessory with its main level and, where its case has one, an entry for that: the name followed by
/// " case" in the language of the interface. Appends nothing for absent levels; others are brought within 0 to 100.
void appendAccessory(std::vector<AccessoryReading>& list, AccessoryReading accessory, const AccessoryLevels& levels);

} // namespace vantrix
