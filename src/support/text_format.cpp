#include "support/text_format.h"

#include <charconv>
#include <cmath>

#include "support/checked.h"

namespace vantrix {
namespace {

/// Not printf: its decimal point follows the process's locale.
std::string scaled(double value, int decimals, char unit) {
    char text[400]; // the longest: a double just below infinity
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals).ptr;
    return std::string(text, end) + unit;
}

} // namespace

std::string roundedInteger(double value) {
    const double rounded = std::round(value);
    if (!(rounded >= -9.2e18 && rounded <= 9.2e18))
        fatalError("a reading that is no finite number cannot be shown as an integer");
    return std::to_string(static_cast<long long>(rounded));
}

std::string compactPercent(double fraction) {
    return roundedInteger(fraction * 100.0) + '%';
}

std::string compactRate(double rate) {
    if (!(rate >= 1e3))
        return "0K";
    if (rate < 1e6)
        return scaled(rate / 1e3, 0, 'K');
    if (rate < 1e7)
        return scaled(rate / 1e6, 1, 'M');
    if (rate < 1e9)
        return scaled(rate / 1e6, 0, 'M');
    return scaled(rate / 1e9, 1, 'G');
}

} // namespace vantrix
