#pragma once

#include <memory>

#include "samplers/location_access.h"

namespace vantrix {

/// The system's keeper of location access (CLLocationManager), with its delegate in place. Main thread only; null when
/// there is none.
std::unique_ptr<LocationManager> makeLocationManager();

} // namespace vantrix
