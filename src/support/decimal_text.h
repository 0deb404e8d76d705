#pragma once

#include <string>

namespace vantrix {

/// `value` rounded to `decimals` digits after the point, which is '.' in every locale.
std::string fixedDecimal(double value, int decimals);

/// `value` in as few of 15 to 17 significant digits as read back as the same number. The point is '.' in every locale.
std::string roundTripDecimal(double value);

} // namespace vantrix
