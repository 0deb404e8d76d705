#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/linux/sources/kernel_file.h"

namespace vantrix {

/// Whether a device may be asked without waking it or keeping it from falling asleep.
class DeviceRest {
  public:
    enum class State {
        awake,
        idle,   ///< a spinning disk that did nothing since the last look: asking it would put off its rest
        asleep, ///< or gone
    };

    /// `device` is the folder of the device behind a chip, <hwmon>/device.
    explicit DeviceRest(const std::string& device, bool isDrive = false);

    /// Reads power/runtime_status, a drive's SCSI state and a spinning disk's statistics, none of which reach the
    /// device. Asked once on each pass.
    State look();

  private:
    bool isIdle();

    std::vector<KernelFile> runtimeStatus_;
    std::optional<KernelFile> scsiState_;
    std::optional<KernelFile> statistics_;
    std::string lastStatistics_;
};

} // namespace vantrix
