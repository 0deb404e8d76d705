#include "platform/linux/sources/gpu_power.h"

#include <algorithm>

#include "platform/linux/sources/kernel_number.h"
#include "platform/linux/sources/kernel_tree.h"

namespace vantrix {

GPUPower GPUPowerFile::read() {
    const auto status = status_.read();
    if (status == "active\n")
        return GPUPower::awake;
    if (status == "suspended\n" || status == "suspending\n")
        return GPUPower::asleep;
    return GPUPower::unknown; // above all "unsupported": without runtime power management
}

GPURest::GPURest(const std::string& device) : device_(device), control_(device + "/power/control") {}

void GPURest::note(double percent, double now) {
    constexpr double idle = 0.5;        // percent
    constexpr double usualDelay = 5.0;  // seconds
    constexpr double margin = 1.0;      // seconds
    constexpr double longestDelay = 60; // seconds
    if (percent >= idle || control_.read() != "auto\n")
        return;
    // The GPU that drives the screen stays awake anyhow.
    if (readStart(device_ + "/boot_vga", 8) == "1\n")
        return;
    const auto text = readStart(device_ + "/power/autosuspend_delay_ms", 32);
    const auto milliseconds = text ? parseNumber(*text) : std::nullopt;
    if (milliseconds.value_or(0) < 0)
        return; // never falls asleep by itself
    const double delay = milliseconds ? static_cast<double>(*milliseconds) / 1000.0 : usualDelay;
    until_ = now + std::min(delay, longestDelay) + margin;
}

} // namespace vantrix
