#include "support/text_format.h"

#include <cmath>
#include <iomanip>
#include <locale>
#include <sstream>
#include <utility>

#include "support/checked.h"

namespace vantrix {
namespace {

/// A stream, because printf follows the process's locale, and a Mac's standard library has std::to_chars for
/// fractions only from 13.3 on.
std::string scaled(double value, int decimals, char unit) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(decimals) << value << unit;
    return std::move(text).str();
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

void appendToList(std::string& list, std::string_view entry) {
    list.append(list.empty() ? "" : ", ").append(entry);
}

} // namespace vantrix
