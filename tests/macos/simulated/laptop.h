#pragma once

#include "macos/simulated/machine.h"

namespace vantrix::simulated {

/// Gives the machine everything that a laptop has.
void furnish(Machine& machine);

/// Two seconds later: time and every counter have moved on.
void advance(Machine& machine);

} // namespace vantrix::simulated
