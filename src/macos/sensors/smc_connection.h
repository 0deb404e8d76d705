#pragma once

#include <memory>

#include "sensors/sensor_keys.h"

namespace vantrix {

/// The keys of the service AppleSMC, over a user client; null when the service is missing or refuses.
std::unique_ptr<SensorKeys> makeSensorKeys();

} // namespace vantrix
