#include "support/text_format.h"

#include <cmath>
#include <cstdio>

#include "support/checked.h"

namespace vantrix {
namespace {

std::string scaled(const char* format, double value) {
    char text[400]; // the longest: a double just below infinity printed with %.1f
    const int length = std::snprintf(text, sizeof text, format, value);
    return std::string(text, static_cast<std::size_t>(length));
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
        return scaled("%.0fK", rate / 1e3);
    if (rate < 1e7)
        return scaled("%.1fM", rate / 1e6);
    if (rate < 1e9)
        return scaled("%.0fM", rate / 1e6);
    return scaled("%.1fG", rate / 1e9);
}

} // namespace vantrix
