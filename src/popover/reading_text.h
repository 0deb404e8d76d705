#pragma once

#include <QString>

#include "support/size_text.h" // IWYU pragma: export

namespace vantrix {

/// Bytes per second, the fraction dropped: "9.4 MB/s". Negative rates and NaN are 0.
QString rateText(double bytesPerSecond);

/// Whole degrees: "52°C".
QString temperatureText(double celsius);

/// "16.4 W".
QString powerText(double watts);

/// A share as "37%".
QString percentText(double fraction);

} // namespace vantrix
