#include "popover/reading_text.h"

#include <cstdint>
#include <limits>

#include <QLocale>

#include "support/text_format.h"
#include "views/view.h"

namespace vantrix {

QString rateText(double rate) {
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    std::uint64_t bytes = 0;
    if (rate >= static_cast<double>(most))
        bytes = most;
    else if (rate > 0.0)
        bytes = static_cast<std::uint64_t>(rate);
    return localizedText("%@/s", byteText(bytes));
}

QString temperatureText(double celsius) {
    return localizedText("%@°C", QString::fromStdString(roundedInteger(celsius)));
}

QString powerText(double watts) {
    return localizedText("%@ W", QLocale().toString(watts, 'f', 1));
}

QString percentText(double fraction) {
    return QString::fromStdString(compactPercent(fraction));
}

} // namespace vantrix
