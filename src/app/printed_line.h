#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/command_line.h"
#include "menubar/menu_bar_item.h"
#include "monitor/readings.h"

namespace vantrix {

/// The row as one line of text, every value padded to its usual width so that the columns stay in place.
std::string textLine(const std::vector<MenuBarItem>& items);

/// One object for waybar's custom module: text, tooltip, class (the worst severity), percentage (the first module's).
std::string waybarLine(const std::vector<MenuBarItem>& items);

/// One JSON object with the current records of `modules`; of all modules, and of what belongs to none, when absent.
/// What was not read is left out. The programs are in it only on demand: their names are private.
std::string jsonLine(const Readings& readings, const std::optional<std::vector<MenuBarModule>>& modules,
                     bool listsPrograms = false);

} // namespace vantrix
