#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "sensors/hid_temperature_sampler.h"
#include "sensors/io_report_sampler.h"
#include "sensors/sensor_keys.h"
#include "sensors/sensors_sample.h"

namespace vantrix {

/// Temperatures, fans and powers from three sources, of which a machine may lack any.
class SensorsSampler {
  public:
    /// The sources may be null; they and `clock` outlive the sampler.
    SensorsSampler(SensorKeys* keys, HIDTemperatureSampler::Source* temperatures, IOReportSampler::Source* energy,
                   const Clock& clock);

    /// The record belongs to the sampler and is valid until the next call, so that a pass allocates nothing. One
    /// caller at a time.
    const SensorsSample& sample();

  private:
    /// What a sensor's name says it measures; it may say several things.
    struct Groups {
        std::string name;
        bool cpu = false;
        bool gpu = false;
        bool soc = false;
        bool ssd = false;
        bool battery = false;
    };

    const Groups& groupsAt(std::size_t place, const std::string& name);
    void deriveTemperatures(const std::vector<TemperatureReading>& readings);
    void sortByValue(const std::vector<TemperatureReading>& readings);
    void readTemperatureKeys();
    void readFans();
    void readPowers();

    SensorKeys* keys_;
    std::optional<HIDTemperatureSampler> hid_;
    std::optional<IOReportSampler> ioReport_;
    std::optional<ComponentPower> lastComponents_;
    std::vector<Groups> groups_;     // by place in the list, as of the last pass
    std::vector<std::size_t> order_; // places in the list, hottest first
    SensorsSample sample_;
};

} // namespace vantrix
