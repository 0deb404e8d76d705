#include "linux/kernel/autosuspend_grid.h"

#include <algorithm>
#include <cmath>

#include "linux/kernel/kernel_tree.h"
#include "support/integer.h"

namespace vantrix {
namespace {

/// Of each connector, <device>/drm/card0/card0-HDMI-A-1.
std::vector<KernelFile> findScreens(const std::string& device) {
    std::vector<KernelFile> files;
    const std::string cards = device + "/drm";
    for (const std::string& card : entriesStartingWith(cards, "card")) {
        const std::string folder = pathBelow(cards, card);
        for (const std::string& connector : entriesStartingWith(folder, card + '-'))
            files.emplace_back(pathBelow(folder, connector) + "/dpms");
    }
    return files;
}

} // namespace

AutosuspendGrid::AutosuspendGrid(const std::string& device, std::optional<double> usualDelay)
    : device_(device), usualDelay_(usualDelay), control_(device + "/power/control"),
      delay_(device + "/power/autosuspend_delay_ms"), bootVGA_(device + "/boot_vga") {}

bool AutosuspendGrid::isBetweenLines(double now) {
    constexpr double margin = 1.0; // seconds
    if (std::floor(now / period_) == line_)
        return mayFallAsleep_;
    const auto delay = readDelay();
    mayFallAsleep_ = delay.has_value();
    period_ = delay ? std::min(*delay + margin, longestPeriod) : longestPeriod;
    line_ = std::floor(now / period_);
    return false;
}

/// Seconds; absent when the device does not fall asleep by itself.
std::optional<double> AutosuspendGrid::readDelay() {
    if (control_.read() != "auto\n" || drivesScreen())
        return std::nullopt;
    const auto text = delay_.read();
    const auto milliseconds = text ? parseIntegerLine(*text) : std::nullopt;
    if (!milliseconds)
        return usualDelay_;
    return *milliseconds < 0 ? std::nullopt : std::optional(static_cast<double>(*milliseconds) / 1000.0);
}

bool AutosuspendGrid::drivesScreen() {
    if (bootVGA_.read() != "1\n")
        return false;
    if (!screens_)
        screens_ = findScreens(device_);
    return std::any_of(screens_->begin(), screens_->end(), [](KernelFile& file) { return file.read() == "On\n"; });
}

} // namespace vantrix
