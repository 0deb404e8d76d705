#include "popover/charts/threshold_color.h"

#include "menubar/menu_bar_item.h"

namespace vantrix {

ColorRole thresholdColor(double fraction, const UserDefaults& defaults) {
    switch (severityOf(fraction, defaults)) {
    case MenuBarSeverity::critical:
        return &ThemeColors::red;
    case MenuBarSeverity::warning:
        return &ThemeColors::orange;
    case MenuBarSeverity::normal:
        break;
    }
    return &ThemeColors::accent;
}

} // namespace vantrix
