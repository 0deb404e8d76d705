#include "linux/graphics/gpu_power.h"

namespace vantrix {

GPUPower GPUPowerFile::read() {
    const auto status = status_.read();
    if (status == "active\n")
        return GPUPower::awake;
    if (status == "suspended\n" || status == "suspending\n")
        return GPUPower::asleep;
    return GPUPower::unknown; // above all "unsupported": without runtime power management
}

} // namespace vantrix
