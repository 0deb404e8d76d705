#pragma once

#include <string>
#include <string_view>

#include "support/units.h"

namespace vantrix {

/// `fraction` × 100, rounded half away from zero, then "%". A value that is not finite is a fault.
std::string compactPercent(double fraction);

/// The parts of a load as they stand beside its total.
struct LoadTexts {
    std::string user;
    std::string system;
    std::string idle;
};

/// Compact percents that add up: user and system to `compactPercent(total)`, with idle to 100%. The part that loses
/// most by being cut is rounded up. `total` is `user` + `system`, all of them fractions.
LoadTexts loadTexts(double total, double user, double system);

/// `bytesPerSecond` in decimal units without a space or "/s": "0K", "12K", "1.5M", "25M", "2.0G". Negative rates and
/// NaN are "0K". The unit is chosen by the rate itself, so 999,500 gives "1000K". In bits, which are eight times as
/// many: "0kb", "12kb", "1.5Mb", "2.0Gb".
std::string compactRate(double bytesPerSecond, NetworkUnit unit);

/// Whole degrees with their sign, localised: "52°C", "126°F".
std::string degreesText(double celsius, TemperatureUnit unit);

/// `value` rounded half away from zero, as an integer. A value that is not finite is a fault.
std::string roundedInteger(double value);

/// Appends an entry to a list such as "CPU, GPU".
void appendToList(std::string& list, std::string_view entry);

} // namespace vantrix
