#pragma once

#include <string>
#include <vector>

#include "menubar/display_choices.h"

namespace vantrix {

struct Readings;
class UserDefaults;

enum class MenuBarSeverity { normal, warning, critical };

/// One reading as the status item shows it.
struct MenuBarItem {
    std::string label;              ///< short upper-case caption
    std::vector<std::string> lines; ///< the value; two lines for rates, one for all else
    MenuBarSeverity severity = MenuBarSeverity::normal;
    std::vector<double> history; ///< 0 to 1, oldest first; empty where the module has none
    double fraction = 0.0;       ///< present value on its own scale, 0 to 1
    std::string reference;       ///< widest text the value normally takes; keeps the block's width steady
    /// What the reading is of; unlike the label the same in every state and language.
    MenuBarModule module = MenuBarModule::cpu;

    bool operator==(const MenuBarItem&) const = default;
};

/// Critical when `fraction` reaches the stored `criticalThreshold`, else warning when it reaches `warningThreshold`.
/// The thresholds are read on every call and may stand in any order.
MenuBarSeverity severityOf(double fraction, const UserDefaults& defaults);

/// The items of `modules` that have something to show, in that order.
std::vector<MenuBarItem> menuBarItems(const std::vector<MenuBarModule>& modules, const Readings& readings,
                                      const UserDefaults& defaults);

/// The lines of the value with blanks between them: "↓12K ↑1.5M".
std::string valueText(const MenuBarItem& item);

/// Label and value: "NET ↓12K ↑1.5M".
std::string itemText(const MenuBarItem& item);

/// What a screen reader says for the row: "CPU 12%, RAM 48%".
std::string accessibilityLabel(const std::vector<MenuBarItem>& items);

} // namespace vantrix
