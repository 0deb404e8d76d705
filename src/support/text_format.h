#pragma once

#include <string>
#include <string_view>

namespace vantrix {

/// `fraction` × 100, rounded half away from zero, then "%". A value that is not finite is a fault.
std::string compactPercent(double fraction);

/// `bytesPerSecond` in decimal units without a space or "/s": "0K", "12K", "1.5M", "25M", "2.0G". Negative rates and
/// NaN are "0K". The unit is chosen by the rate itself, so 999,500 gives "1000K".
std::string compactRate(double bytesPerSecond);

/// `value` rounded half away from zero, as an integer. A value that is not finite is a fault.
std::string roundedInteger(double value);

/// Appends an entry to a list such as "CPU, GPU".
void appendToList(std::string& list, std::string_view entry);

} // namespace vantrix
