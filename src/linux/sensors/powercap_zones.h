#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/device_threads.h"
#include "linux/sensors/sensor_files.h"

namespace vantrix {

/// The growth of a counter that runs from 0 to `range` and starts over. Absent when that makes no sense.
std::optional<std::uint64_t> wrappedGrowth(std::uint64_t now, std::uint64_t before, std::uint64_t range);

/// A counter of the energy one part of the machine has used: a folder of <sys>/class/powercap with `energy_uj`, which
/// most systems let only the administrator read, and `max_energy_range_uj`.
class EnergyZone {
  public:
    EnergyZone(std::string folder, std::string name, std::shared_ptr<const Clock> clock,
               const std::shared_ptr<DeviceThreads>& threads);

    /// "intel-rapl:0:1", of which "intel-rapl:0" is the parent.
    const std::string& id() const { return id_; }
    const std::string& folder() const { return folder_; }
    /// "package-0", "core", "uncore", "dram", "psys"
    const std::string& name() const { return name_; }

    /// Microjoules; absent when it cannot be read.
    std::optional<std::uint64_t> read();
    std::optional<std::uint64_t> growth(std::uint64_t now, std::uint64_t before) const {
        return wrappedGrowth(now, before, range_);
    }

  private:
    std::string folder_;
    std::string id_;
    std::string name_;
    std::uint64_t range_ = 0;
    TimedSensor counter_;
};

/// All zones that the processor counts, sorted by id.
std::vector<EnergyZone> findEnergyZones(const std::string& sys, const std::shared_ptr<const Clock>& clock,
                                        const std::shared_ptr<DeviceThreads>& threads);

} // namespace vantrix
