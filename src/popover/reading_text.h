#pragma once

#include <QString>

#include "support/size_text.h" // IWYU pragma: export

namespace vantrix {

/// Bytes per second, the fraction dropped: "9.4 MB/s". Negative rates and NaN are 0.
QString rateText(double bytesPerSecond);

/// The same in bits: "75.2 Mb/s".
QString bitRateText(double bytesPerSecond);

/// Writes a rate in bytes per second.
using RateText = QString (*)(double);
RateText rateTextIn(NetworkUnit unit);

/// Whole degrees: "52°C", "126°F".
QString temperatureText(double celsius, TemperatureUnit unit);

/// "16.4 W".
QString powerText(double watts);

/// A share as "37%".
QString percentText(double fraction);

/// The share that one of many has: "37%", but "3.7%" where it is less than a tenth.
QString shareText(double fraction);

} // namespace vantrix
