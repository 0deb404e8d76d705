#pragma once

#include <optional>
#include <string>
#include <vector>

#include "sensors/sensors_sample.h"

namespace vantrix {

class HIDTemperatureSampler {
  public:
    /// One temperature sensor of the system's list. An entry without a temperature keeps its place in the list.
    struct Service {
        std::optional<std::string> product;
        std::optional<double> temperature; ///< °C, as the sensor tells it
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Replaces `services` by the list of sensors. False when it cannot be read; `services` is then unspecified.
        virtual bool read(std::vector<Service>& services) = 0;
    };

    /// `source` outlives the sampler.
    explicit HIDTemperatureSampler(Source& source) : source_(source) {}

    /// The sensors whose temperature is plausible (0 to 150 °C, both excluded), in the system's order; a sensor
    /// without a name is called "Sensor " and its place in that order, from 0. Holds until the next call.
    const std::vector<TemperatureReading>& read();

  private:
    Source& source_;
    std::vector<Service> services_;
    std::vector<TemperatureReading> readings_;
};

} // namespace vantrix
