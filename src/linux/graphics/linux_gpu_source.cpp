#include "linux/graphics/linux_gpu_source.h"

#include <algorithm>

#include "linux/kernel/kernel_tree.h"

namespace vantrix {
namespace {

constexpr double searchInterval = 60.0; // seconds; a driver may add its files after its device

} // namespace

KernelGPU::KernelGPU(std::string card, std::string device)
    : card_(std::move(card)), device_(std::move(device)), power_(device_), rest_(device_) {}

std::optional<double> KernelGPU::percent(double now) {
    if (power_.read() == GPUPower::asleep) {
        rest_.end();
        wasSilent_ = false;
        if (meter_)
            meter_->forget();
        return tellsLoad(now) ? std::optional(0.0) : std::nullopt;
    }
    if (rest_.isDue(now))
        return load_;
    if (!meter_ && now >= nextSearch_) {
        meter_ = findMeter(card_, device_);
        nextSearch_ = now + searchInterval;
    }
    load_ = meter_ ? meter_->percent(now) : std::nullopt;
    isSilent_ = !load_ && (isSilent_ || wasSilent_);
    wasSilent_ = !load_;
    rest_.note(load_);
    return load_;
}

/// One that tells none while it is awake must not come and go with its sleep.
bool KernelGPU::tellsLoad(double now) {
    if (!meter_ && !isMeterOffered_ && now >= nextLook_) {
        isMeterOffered_ = !offeredMeterFiles(card_, device_).paths.empty();
        nextLook_ = now + searchInterval;
    }
    return !isSilent_ && (meter_ || isMeterOffered_);
}

LinuxGPUSource::LinuxGPUSource(const std::string& sys, std::unique_ptr<Clock> clock,
                               std::unique_ptr<NvidiaLibrary> library, RescanSchedule::Pace pace,
                               std::shared_ptr<Background> background)
    : clock_(std::move(clock)),
      schedule_({sys + "/class/drm", sys + "/class/devfreq", sys + "/bus/pci/drivers/nvidia"}, pace),
      nvidiaGPUs_(std::move(library), std::move(background)) {}

std::optional<std::span<const Properties>> LinuxGPUSource::read() {
    if (schedule_.isDue())
        findGPUs();
    const double now = clock_->uptime();
    loads_.clear();
    for (KernelGPU& gpu : gpus_)
        loads_.push_back(gpu.percent(now));
    nvidiaGPUs_.read(now, loads_);
    statistics_.resize(loads_.size());
    for (std::size_t i = 0; i < loads_.size(); ++i) {
        statistics_[i].clear();
        if (loads_[i])
            statistics_[i].set("Device Utilization %", *loads_[i]);
    }
    return statistics_;
}

void LinuxGPUSource::findGPUs() {
    const KernelFolder& cards = schedule_.folders()[0];
    const KernelFolder& frequencies = schedule_.folders()[1];
    const KernelFolder& nvidiaDevices = schedule_.folders()[2];
    std::vector<KernelGPU> found;
    for (const std::string& name : cards.names()) {
        const std::string card = pathBelow(cards.path(), name);
        if (isGPUCard(name))
            findKernelGPU(card, card + "/device", found);
    }
    for (const std::string& name : frequencies.names()) {
        if (isGPUFrequency(name))
            findKernelGPU("", pathBelow(frequencies.path(), name) + "/device", found);
    }
    gpus_ = std::move(found);
    std::vector<std::string> addresses;
    std::copy_if(nvidiaDevices.names().begin(), nvidiaDevices.names().end(), std::back_inserter(addresses),
                 isPCIAddress);
    std::sort(addresses.begin(), addresses.end()); // their temperatures are told apart by their places
    nvidiaGPUs_.set(nvidiaDevices.path(), std::move(addresses));
}

/// One that is known already is kept with what was counted of it: most of what comes and goes are its screens.
void LinuxGPUSource::findKernelGPU(const std::string& card, const std::string& device, std::vector<KernelGPU>& found) {
    const auto known =
        std::find_if(gpus_.begin(), gpus_.end(), [&](const KernelGPU& gpu) { return gpu.device() == device; });
    if (known == gpus_.end()) {
        found.emplace_back(card, device);
        return;
    }
    found.push_back(std::move(*known));
    found.back().forgetScreens();
}

} // namespace vantrix
