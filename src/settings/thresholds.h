#pragma once

namespace vantrix {

class UserDefaults;

/// Stores the fraction from which a reading counts as a warning, and raises the critical one above it where needed.
void setWarningThreshold(UserDefaults& defaults, double warning);

/// Stores the fraction from which a reading counts as critical, and lowers the warning one below it where needed.
void setCriticalThreshold(UserDefaults& defaults, double critical);

} // namespace vantrix
