#include "support/text_format.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>
#include <utility>

#include "support/checked.h"
#include "support/localization.h"

namespace vantrix {
namespace {

/// A stream, because printf follows the process's locale, and a Mac's standard library has std::to_chars for
/// fractions only from 13.3 on.
std::string scaled(double value, int decimals, std::string_view unit) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(decimals) << value << unit;
    return std::move(text).str();
}

struct RateUnits {
    std::string_view kilo;
    std::string_view mega;
    std::string_view giga;
};

long long rounded(double value) {
    constexpr double most = 9.2e18; // what fits into 64 bits
    if (!std::isfinite(value))
        fatalError("a reading that is no finite number cannot be shown as an integer");
    return static_cast<long long>(std::clamp(std::round(value), -most, most));
}

std::string wholePercent(long long percent) {
    return std::to_string(percent) + '%';
}

} // namespace

std::string roundedInteger(double value) {
    return std::to_string(rounded(value));
}

std::string compactPercent(double fraction) {
    return wholePercent(rounded(fraction * 100.0));
}

LoadTexts loadTexts(double total, double user, double system) {
    const auto shown = std::clamp(rounded(total * 100.0), 0LL, 100LL); // rounding noise may exceed the whole
    const double userFloor = std::floor(user * 100.0);
    const double systemFloor = std::floor(system * 100.0);
    const auto left = shown - rounded(userFloor + systemFloor);
    const bool userLosesMore = user * 100.0 - userFloor >= system * 100.0 - systemFloor;
    const auto ofUser = std::min(rounded(userFloor) + (left > 1 || (left == 1 && userLosesMore) ? 1 : 0), shown);
    return {wholePercent(ofUser), wholePercent(shown - ofUser), wholePercent(100 - shown)};
}

std::string compactRate(double bytesPerSecond, NetworkUnit unit) {
    const bool inBits = unit == NetworkUnit::bits;
    const RateUnits units = inBits ? RateUnits{"kb", "Mb", "Gb"} : RateUnits{"K", "M", "G"};
    const double rate = inBits ? bytesPerSecond * 8.0 : bytesPerSecond;
    if (!(rate >= 1e3))
        return scaled(0.0, 0, units.kilo);
    if (rate < 1e6)
        return scaled(rate / 1e3, 0, units.kilo);
    if (rate < 1e7)
        return scaled(rate / 1e6, 1, units.mega);
    if (rate < 1e9)
        return scaled(rate / 1e6, 0, units.mega);
    return scaled(rate / 1e9, 1, units.giga);
}

std::string degreesText(double celsius, TemperatureUnit unit) {
    const std::string degrees = roundedInteger(inUnit(celsius, unit));
    const bool inCelsius = unit == TemperatureUnit::celsius;
    return formatted(localized(inCelsius ? "%@°C" : "%@°F"), {std::string_view(degrees)});
}

void appendToList(std::string& list, std::string_view entry) {
    list.append(list.empty() ? "" : ", ").append(entry);
}

} // namespace vantrix
