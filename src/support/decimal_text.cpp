#include "support/decimal_text.h"

#include <locale>
#include <sstream>
#include <utility>

namespace vantrix {
namespace {

/// Streams, because printf follows the process's locale, and a Mac's standard library has std::to_chars for fractions
/// only from 13.3 on.
std::string written(double value, std::ios_base::fmtflags notation, int digits) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.setf(notation, std::ios_base::floatfield);
    text.precision(digits);
    text << value;
    return std::move(text).str();
}

double readBack(const std::string& text) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    double value = 0.0;
    stream >> value;
    return value;
}

} // namespace

std::string fixedDecimal(double value, int decimals) {
    return written(value, std::ios_base::fixed, decimals);
}

std::string roundTripDecimal(double value) {
    constexpr std::ios_base::fmtflags general{};
    for (int digits = 15; digits < 17; ++digits) {
        std::string text = written(value, general, digits);
        if (readBack(text) == value)
            return text;
    }
    return written(value, general, 17);
}

} // namespace vantrix
