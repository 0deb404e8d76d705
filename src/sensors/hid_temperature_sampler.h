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
        std::optional<double> temperature; ///< °C, as the sensor reports it
    };

    class Source {
      public:
        virtual ~Source() = default;
        /// Replaces `services` by the list of sensors. False when it cannot be read; `services` is then unspecified.
        virtual bool read(std::vector<Service>& services) = 0;
    };

    /// `source` outlives the sampler.
    explicit HIDTemperatureSampler(Source& source) : source_(source) {}

    /// The sensors with a plausible temperature, in the system's order; one without a name is called "Sensor " and its
    /// place in that order, from 0. Valid until the next call.
    const std::vector<TemperatureReading>& read();

  private:
    Source& source_;
    std::vector<Service> services_;
    std::vector<TemperatureReading> readings_;
};

} // namespace vantrix
