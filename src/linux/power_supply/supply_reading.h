#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "linux/kernel/timed_sensor.h"
#include "linux/power_supply/power_supply.h"

namespace vantrix {

/// What one look at a machine's power supplies tells.
struct SupplyReading {
    std::vector<SupplyState> packs;       ///< those that are in their bays and tell their level
    std::optional<bool> isExternalOnline; ///< whether power comes in; absent when nothing tells
};

/// The last finished look, which another thread may have taken.
class SharedSupplyReading {
  public:
    /// Swaps it with `reading`, so that neither allocates.
    void exchange(SupplyReading& reading);
    void copyTo(SupplyReading& reading) const;

  private:
    mutable std::mutex mutex_;
    SupplyReading reading_;
};

/// Looks at all packs and adapters as one sensor: behind any of their files the firmware may ask a slow controller.
class SupplyProbe : public TimedSensor::Probe {
  public:
    /// `packs` and `externals` are entries' folders.
    SupplyProbe(const std::vector<std::string>& packs, const std::vector<std::string>& externals,
                std::shared_ptr<SharedSupplyReading> shared);

    /// Always a number, which stands for a finished look.
    std::optional<double> read() override;

  private:
    struct External {
        KernelFile online;
        std::optional<KernelFile> scope; ///< of ports that may give power as well as take it

        std::optional<bool> isOnline();
    };

    void readPacks();
    void readExternals();

    std::vector<PowerSupply> packs_;
    std::vector<External> externals_;
    SupplyReading reading_;
    std::shared_ptr<SharedSupplyReading> shared_;
};

} // namespace vantrix
