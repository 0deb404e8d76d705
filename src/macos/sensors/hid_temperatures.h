#pragma once

#include <memory>

#include "sensors/hid_temperature_sampler.h"

namespace vantrix {

/// The temperature sensors of the HID event system; null when a function is missing or no client can be made.
std::unique_ptr<HIDTemperatureSampler::Source> makeHIDTemperatures();

} // namespace vantrix
