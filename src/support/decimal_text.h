#pragma once

#include <string>

namespace vantrix {

/// With that many digits after the point, rounded. The point is '.' whatever the process's locale is.
std::string fixedDecimal(double value, int decimals);

/// The shortest of 15 to 17 significant digits that reads back as the same `value`. The point is '.' whatever the
/// process's locale is.
std::string roundTripDecimal(double value);

} // namespace vantrix
