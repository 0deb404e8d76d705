#include "platform/linux/sources/nvidia_gpus.h"

#include <algorithm>

#include "platform/linux/sources/kernel_tree.h"

namespace vantrix {
namespace {

constexpr double retryDelay = 60.0; // seconds

} // namespace

void NvidiaGPUs::set(const std::string& folder, const std::vector<std::string>& addresses) {
    stop();
    gpus_.clear();
    for (const std::string& address : addresses) {
        const std::string device = pathBelow(folder, address);
        gpus_.push_back({address, GPUPowerFile(device), GPURest(device)});
    }
    nextStart_ = 0.0;
}

void NvidiaGPUs::read(double now, std::vector<std::optional<double>>& loads) {
    if (!refreshPower(now))
        stop();
    else if (!isStarted_)
        start(now);
    for (GPU& gpu : gpus_)
        loads.push_back(loadOf(gpu, now));
}

/// True when a GPU is to be asked.
bool NvidiaGPUs::refreshPower(double now) {
    bool isAnyAtWork = false;
    for (GPU& gpu : gpus_) {
        gpu.power = gpu.powerFile.read();
        if (gpu.power == GPUPower::asleep)
            gpu.rest.end();
        isAnyAtWork |= gpu.power == GPUPower::awake && !gpu.rest.isDue(now);
    }
    return isAnyAtWork;
}

void NvidiaGPUs::start(double now) {
    const auto isAwake = [](const GPU& gpu) { return gpu.power == GPUPower::awake; };
    if (now < nextStart_ || !std::all_of(gpus_.begin(), gpus_.end(), isAwake))
        return;
    nextStart_ = now + retryDelay;
    if (!library_->start())
        return;
    isStarted_ = true;
    for (GPU& gpu : gpus_)
        gpu.device = library_->find(gpu.address);
}

void NvidiaGPUs::stop() {
    if (!isStarted_)
        return;
    library_->stop();
    isStarted_ = false;
    nextStart_ = 0.0;
    for (GPU& gpu : gpus_)
        gpu.device.reset();
}

std::optional<double> NvidiaGPUs::loadOf(GPU& gpu, double now) {
    if (gpu.power == GPUPower::asleep || gpu.rest.isDue(now))
        return 0.0;
    if (gpu.power != GPUPower::awake || !gpu.device)
        return std::nullopt;
    const auto percent = library_->utilization(*gpu.device);
    if (!percent) {
        stop(); // the driver may have been reloaded or the GPU lost
        nextStart_ = now + retryDelay;
        return std::nullopt;
    }
    gpu.rest.note(*percent, now);
    return *percent;
}

} // namespace vantrix
