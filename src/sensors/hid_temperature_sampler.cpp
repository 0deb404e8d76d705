#include "sensors/hid_temperature_sampler.h"

namespace vantrix {

const std::vector<TemperatureReading>& HIDTemperatureSampler::read() {
    if (!source_.read(services_))
        services_.clear();
    std::size_t count = 0;
    for (std::size_t i = 0; i < services_.size(); ++i) {
        const Service& service = services_[i];
        if (!service.temperature || !isPlausibleTemperature(*service.temperature))
            continue;
        if (count == readings_.size())
            readings_.emplace_back();
        TemperatureReading& reading = readings_[count++]; // in place: its name's memory serves every pass
        reading.value = *service.temperature;
        if (service.product)
            reading.name = *service.product;
        else
            reading.name = "Sensor " + std::to_string(i);
    }
    readings_.resize(count);
    return readings_;
}

} // namespace vantrix
