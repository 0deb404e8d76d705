#include "linux/kernel/device_rest.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"

namespace vantrix {

DeviceRest::DeviceRest(const std::string& device, bool isDrive, double interval) : interval_(interval) {
    // The controller of an NVMe drive has no state of its own: that of the PCI device behind it counts.
    for (const std::string& folder : {device, device + "/device"}) {
        const std::string path = folder + "/power/runtime_status";
        const auto status = readStart(path);
        if (status && status != "unsupported\n")
            powers_.push_back({KernelFile(path), AutosuspendGrid(folder)});
    }
    if (!isDrive)
        return;
    if (pathExists(device + "/state"))
        scsiState_.emplace(device + "/state");
    const std::string disks = device + "/block/";
    for (const std::string& disk : entriesStartingWith(disks, "sd")) {
        std::string folder = disks;
        folder += disk;
        if (readStart(folder + "/queue/rotational") == "1\n")
            statistics_.emplace(folder + "/stat");
    }
}

DeviceRest::State DeviceRest::look(double now) {
    if (isAsleep())
        return State::asleep;
    if (isBetweenLines(now) || now < nextQuestion_ || isIdleDisk())
        return State::idle;
    nextQuestion_ = now + interval_;
    return State::awake;
}

bool DeviceRest::isAsleep() {
    const auto isActive = [](Power& power) { return power.status.read() == "active\n"; };
    return !std::all_of(powers_.begin(), powers_.end(), isActive) || (scsiState_ && scsiState_->read() != "running\n");
}

bool DeviceRest::isBetweenLines(double now) {
    bool isBetween = false;
    for (Power& power : powers_)
        isBetween = power.grid.isBetweenLines(now) || isBetween;
    return isBetween;
}

bool DeviceRest::isIdleDisk() {
    if (!statistics_)
        return false;
    const auto text = statistics_->read();
    if (!text)
        return true;
    // Nothing tells that a disk has stopped spinning on its own; one that was never seen at work counts as idle.
    const bool hasWorked = !lastStatistics_.empty() && lastStatistics_ != *text;
    lastStatistics_ = *text;
    return !hasWorked;
}

} // namespace vantrix
