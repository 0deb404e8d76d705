#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/rescan_schedule.h"
#include "linux/sensors/powercap_zones.h"
#include "sensors/io_report_sampler.h"

namespace vantrix {

/// The processor's energy counters as channels: "CPU Energy" is what a package used but for its graphics, "GPU Energy"
/// its graphics ("uncore"), "DRAM" the memory. The cores' own counter is left alone: some processors give that of one
/// core for all.
class PowercapEnergy : public IOReportSampler::Source {
  public:
    PowercapEnergy(std::string sys, std::shared_ptr<const Clock> clock,
                   std::shared_ptr<DeviceThreads> threads = std::make_shared<DeviceThreads>());

    bool takeSnapshot() override;
    bool readDifference(std::vector<IOReportSampler::Channel>& channels) override;

  private:
    struct Counter {
        EnergyZone zone;
        std::optional<std::uint64_t> before;
        std::optional<std::uint64_t> now;
        std::optional<std::uint64_t> next;

        std::optional<std::uint64_t> growth() const;
    };

    void search();
    std::uint64_t graphicsGrowth(const EnergyZone& package) const;

    std::string sys_;
    std::shared_ptr<const Clock> clock_;
    std::shared_ptr<DeviceThreads> threads_;
    RescanSchedule schedule_;
    std::vector<Counter> counters_;
};

} // namespace vantrix
