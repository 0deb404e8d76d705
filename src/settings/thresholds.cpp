#include "settings/thresholds.h"

#include <algorithm>
#include <cmath>

#include "menubar/preferences.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

constexpr double step = 0.05;
constexpr double leastWarning = 0.5;
constexpr double mostCritical = 1.0;

/// The double nearest to a decimal number of two places: sums of such numbers drift.
double clean(double fraction) {
    return std::round(fraction * 100.0) / 100.0;
}

} // namespace

void setWarningThreshold(UserDefaults& defaults, double warning) {
    defaults.set(preference_key::warningThreshold, warning);
    if (defaults.number(preference_key::criticalThreshold) <= warning)
        defaults.set(preference_key::criticalThreshold, clean(std::min(warning + step, mostCritical)));
}

void setCriticalThreshold(UserDefaults& defaults, double critical) {
    defaults.set(preference_key::criticalThreshold, critical);
    if (defaults.number(preference_key::warningThreshold) >= critical)
        defaults.set(preference_key::warningThreshold, clean(std::max(critical - step, leastWarning)));
}

} // namespace vantrix
