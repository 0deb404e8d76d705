#pragma once

#include <memory>

#include "samplers/location_access.h"

namespace vantrix {

/// CLLocationManager. Main thread only.
std::unique_ptr<LocationManager> makeLocationManager();

} // namespace vantrix
