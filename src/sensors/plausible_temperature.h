#pragma once

namespace vantrix {

/// False for NaN too.
constexpr bool isPlausibleTemperature(double celsius) {
    return celsius > 0.0 && celsius < 150.0;
}

} // namespace vantrix
