#pragma once

#include <optional>
#include <span>

#include "samplers/battery_sample.h"
#include "support/properties.h"

namespace vantrix {

/// The machine's internal battery.
class BatterySampler {
  public:
    class Source {
      public:
        virtual ~Source() = default;
        /// One description per power source, valid until the next call. Keys: "Type" ("InternalBattery"),
        /// "Current Capacity" of "Max Capacity", "Is Charging", "Power Source State" ("AC Power"), "Time to Empty" and
        /// "Time to Full Charge" (minutes; negative while still estimated). Absent when they cannot be listed.
        virtual std::optional<std::span<const Properties>> powerSources() = 0;
        /// The battery's own registers, valid until the next call; null when it has none. Keys: "CycleCount",
        /// "DesignCapacity", "AppleRawMaxCapacity" or "MaxCapacity" (one unit for all), "Temperature" (1/100 °C),
        /// "Voltage" (mV), "Amperage" or "InstantAmperage" (mA, negative while discharging).
        virtual const Properties* smartBattery() = 0;
    };

    /// `source` outlives the sampler.
    explicit BatterySampler(Source& source) : source_(source) {}

    /// Absent on a machine without an internal battery. Every call stands alone.
    std::optional<BatterySample> sample();

  private:
    Source& source_;
};

} // namespace vantrix
