#pragma once

#include <optional>

#include <QString>

#include "menubar/display_choices.h"
#include "support/units.h"

namespace vantrix {

struct Readings;

/// What the row in the status area has no room for, one thing a line: memory in use of the total, the Wi-Fi network's
/// name, free disk space, temperatures, power. Only what goes with `module`, or everything. Empty where nothing is
/// known. Plain text, also for those who would take it for markup.
QString statusDetails(const Readings& readings, const Units& units, std::optional<MenuBarModule> module);

} // namespace vantrix
