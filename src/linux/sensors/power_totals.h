#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/device_threads.h"
#include "linux/kernel/rescan_schedule.h"
#include "linux/sensors/hwmon_chips.h"
#include "linux/sensors/powercap_zones.h"

namespace vantrix {

/// Watts that the whole machine draws and that its adapter delivers.
class PowerTotals {
  public:
    PowerTotals(std::string sys, std::shared_ptr<const Clock> clock, std::shared_ptr<DeviceThreads> threads);

    /// To be called once at the beginning of each pass.
    void beginPass();

    /// From the first of these that answers: the processor's counter for the platform ("psys"), a power meter of the
    /// board, and what the batteries give together with what the adapter is known to deliver.
    std::optional<double> system();
    std::optional<double> adapter();

  private:
    struct Platform {
        EnergyZone zone;
        std::optional<std::uint64_t> energy;
        double time = 0.0;
    };

    void search();
    void findPlatform();
    void findMeters(std::vector<KeptSensor>& system, std::vector<KeptSensor>& adapter);
    void findSupplies(std::vector<KeptSensor>& adapters, std::vector<KeptSensor>& batteries);
    KeptSensor findSupply(std::vector<KeptSensor>& known, const std::string& entry, const std::string& name,
                          const std::string& stateFile, const std::string& state) const;
    std::optional<double> platformPower();
    std::optional<double> sum(std::vector<KeptSensor>& sensors);

    std::string sys_;
    std::shared_ptr<const Clock> clock_;
    std::shared_ptr<DeviceThreads> threads_;
    RescanSchedule schedule_;
    std::optional<Platform> platform_;
    std::vector<KeptSensor> meters_;
    std::vector<KeptSensor> adapters_;
    std::vector<KeptSensor> batteries_;
};

} // namespace vantrix
