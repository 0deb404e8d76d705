#include "popover/reading_text.h"

#include <cstdint>
#include <limits>

#include <QLocale>

#include "support/text_format.h"
#include "views/view.h"

namespace vantrix {

namespace {

/// Without the fraction; negative numbers and NaN are 0.
std::uint64_t whole(double rate) {
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    if (rate >= static_cast<double>(most))
        return most;
    return rate > 0.0 ? static_cast<std::uint64_t>(rate) : 0;
}

} // namespace

QString rateText(double rate) {
    return localizedText("%@/s", byteText(whole(rate)));
}

QString bitRateText(double rate) {
    return localizedText("%@/s", bitText(whole(rate * 8.0)));
}

RateText rateTextIn(NetworkUnit unit) {
    return unit == NetworkUnit::bits ? bitRateText : rateText;
}

QString temperatureText(double celsius, TemperatureUnit unit) {
    return QString::fromStdString(degreesText(celsius, unit));
}

QString powerText(double watts) {
    return localizedText("%@ W", QLocale().toString(watts, 'f', 1));
}

QString percentText(double fraction) {
    return QString::fromStdString(compactPercent(fraction));
}

QString shareText(double fraction) {
    constexpr double leastWhole = 0.0995; // what would be "10.0%"
    return fraction < leastWhole ? QLocale().toString(fraction * 100.0, 'f', 1) + u'%' : percentText(fraction);
}

} // namespace vantrix
