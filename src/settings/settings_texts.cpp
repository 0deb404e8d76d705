#include "settings/settings_texts.h"

#include <algorithm>
#include <cmath>

#include <QLocale>

#include "support/localization.h"
#include "support/text_format.h"
#include "views/view.h"

namespace vantrix {
namespace {

constexpr std::string_view secondsKey = "%lld seconds";
constexpr double mostWhole = 1e9;
constexpr double mostFraction = 9.99;

} // namespace

QString secondsText(double seconds) {
    if (std::abs(seconds) < mostWhole && seconds == std::round(seconds))
        return QString::fromStdString(localizedCount(secondsKey, std::llround(seconds)));
    // The form for the next whole number: plural wherever a fraction takes the plural.
    const auto whole = static_cast<long long>(std::clamp(std::ceil(seconds), 2.0, 9.0));
    QString text = QString::fromStdString(localizedCount(secondsKey, whole));
    return text.replace(QString::number(whole), QLocale().toString(seconds, 'g', QLocale::FloatingPointShortest));
}

QString thresholdText(double fraction) {
    return QString::fromStdString(compactPercent(std::clamp(fraction, -mostFraction, mostFraction)));
}

} // namespace vantrix
