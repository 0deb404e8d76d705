#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// What to call the accessory behind an entry of /sys/class/power_supply.
struct AccessoryName {
    std::string text;
    std::string symbol; ///< the symbol that goes with it
    bool isOwn = true;  ///< false for its kind, in the language of the interface
};

/// The Bluetooth address somewhere in `text`, in capitals; empty when there is none.
std::string findAddress(std::string_view text);

/// The part of a reported name that tells people something: "Stylus" of "ELAN9008:00 04F3:2A1C Stylus". Empty when
/// there is none, as in "hidpp_battery_0" and "HID 256c:006d".
std::string tellingName(std::string_view reported);

/// The accessory's model, else the name of the device that has the battery, else of its first input device that has
/// one, else its kind. `supply` is the entry's folder, `entry` its name.
AccessoryName accessoryName(const std::string& supply, std::string_view entry);

} // namespace vantrix
