#include "platform/linux/sources/device_rest.h"

#include <algorithm>

#include "platform/linux/sources/kernel_tree.h"

namespace vantrix {

DeviceRest::DeviceRest(const std::string& device, bool isDrive) {
    // The controller of an NVMe drive has no state of its own: that of the PCI device behind it counts.
    for (const std::string& folder : {device, device + "/device"}) {
        const std::string path = folder + "/power/runtime_status";
        const auto status = readStart(path);
        if (status && status != "unsupported\n")
            runtimeStatus_.emplace_back(path);
    }
    if (!isDrive)
        return;
    if (pathExists(device + "/state"))
        scsiState_.emplace(device + "/state");
    for (const std::string& disk : entriesStartingWith(device + "/block", "sd")) {
        const std::string folder = device + "/block/" + disk;
        if (readStart(folder + "/queue/rotational") == "1\n")
            statistics_.emplace(folder + "/stat");
    }
}

DeviceRest::State DeviceRest::look() {
    const auto isActive = [](KernelFile& file) { return file.read() == "active\n"; };
    if (!std::all_of(runtimeStatus_.begin(), runtimeStatus_.end(), isActive))
        return State::asleep;
    if (scsiState_ && scsiState_->read() != "running\n")
        return State::asleep;
    return isIdle() ? State::idle : State::awake;
}

bool DeviceRest::isIdle() {
    if (!statistics_)
        return false;
    const auto text = statistics_->read();
    if (!text)
        return true;
    // A disk that stopped spinning on its own says so nowhere; one that was never seen at work counts as idle.
    const bool hasWorked = !lastStatistics_.empty() && lastStatistics_ != *text;
    lastStatistics_ = *text;
    return !hasWorked;
}

} // namespace vantrix
