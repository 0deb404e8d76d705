#pragma once

#include "views/theme_colors.h"

namespace vantrix {

class UserDefaults;

/// One of the theme's colours, whatever the theme.
using ColorRole = QColor ThemeColors::*;

/// Red when `fraction` reaches the stored `criticalThreshold`, else orange when it reaches `warningThreshold`, else the
/// accent colour. The thresholds are read on every call.
ColorRole thresholdColor(double fraction, const UserDefaults& defaults);

} // namespace vantrix
