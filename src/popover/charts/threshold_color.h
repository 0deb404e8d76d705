#pragma once

#include "views/theme_colors.h"

namespace vantrix {

class UserDefaults;

/// Red when `fraction` reaches the stored `criticalThreshold`, else orange when it reaches `warningThreshold`, else the
/// accent colour. The thresholds are read on every call.
ColorRole thresholdColor(double fraction, const UserDefaults& defaults);

} // namespace vantrix
