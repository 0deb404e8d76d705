#include "linux/graphics/linux_gpu_source.h"

#include <algorithm>

#include "linux/graphics/gpu_names.h"

namespace vantrix {
KernelGPU::KernelGPU(std::string card, std::string device)
    : card_(std::move(card)), device_(std::move(device)), power_(device_), rest_(device_) {}

std::optional<double> KernelGPU::percent(double now) {
    constexpr double searchInterval = 60.0; // seconds; a driver may add its files after its device
    if (power_.read() == GPUPower::asleep) {
        rest_.end();
        if (meter_)
            meter_->forget();
        return 0.0;
    }
    if (rest_.isDue(now))
        return load_;
    if (!meter_ && now >= nextSearch_) {
        meter_ = findMeter(card_, device_);
        nextSearch_ = now + searchInterval;
    }
    load_ = meter_ ? meter_->percent(now) : std::nullopt;
    rest_.note(load_);
    return load_;
}

LinuxGPUSource::LinuxGPUSource(const std::string& sys, std::unique_ptr<Clock> clock,
                               std::unique_ptr<NvidiaLibrary> library, int listingPeriod,
                               std::shared_ptr<Background> background)
    : clock_(std::move(clock)), cards_(sys + "/class/drm", listingPeriod),
      frequencies_(sys + "/class/devfreq", listingPeriod),
      nvidiaDevices_(sys + "/bus/pci/drivers/nvidia", listingPeriod),
      nvidiaGPUs_(std::move(library), std::move(background)) {}

std::optional<std::span<const Properties>> LinuxGPUSource::read() {
    const bool areCardsNew = cards_.refresh();
    const bool areFrequenciesNew = frequencies_.refresh();
    const bool areNvidiaDevicesNew = nvidiaDevices_.refresh();
    if (areCardsNew || areFrequenciesNew || areNvidiaDevicesNew)
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
    std::vector<KernelGPU> found;
    for (const std::string& name : cards_.names()) {
        if (isGPUCard(name))
            findKernelGPU(cards_.path() + '/' + name, cards_.path() + '/' + name + "/device", found);
    }
    for (const std::string& name : frequencies_.names()) {
        if (isGPUFrequency(name))
            findKernelGPU("", frequencies_.path() + '/' + name + "/device", found);
    }
    gpus_ = std::move(found);
    std::vector<std::string> addresses;
    std::copy_if(nvidiaDevices_.names().begin(), nvidiaDevices_.names().end(), std::back_inserter(addresses),
                 isPCIAddress);
    nvidiaGPUs_.set(nvidiaDevices_.path(), std::move(addresses));
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
