#include "platform/linux/sources/linux_gpu_source.h"

#include <algorithm>

#include "platform/linux/sources/gpu_names.h"

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
        return 0.0;
    if (!meter_ && now >= nextSearch_) {
        meter_ = findMeter(card_, device_);
        nextSearch_ = now + searchInterval;
    }
    const auto load = meter_ ? meter_->percent(now) : std::nullopt;
    if (load)
        rest_.note(*load, now);
    return load;
}

LinuxGPUSource::LinuxGPUSource(const std::string& sys, std::unique_ptr<Clock> clock,
                               std::unique_ptr<NvidiaLibrary> library, int listingPeriod)
    : clock_(std::move(clock)), cards_(sys + "/class/drm", listingPeriod),
      frequencies_(sys + "/class/devfreq", listingPeriod),
      nvidiaDevices_(sys + "/bus/pci/drivers/nvidia", listingPeriod), nvidiaGPUs_(std::move(library)) {}

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
    gpus_.clear();
    for (const std::string& name : cards_.names()) {
        if (isGPUCard(name))
            gpus_.emplace_back(cards_.path() + '/' + name, cards_.path() + '/' + name + "/device");
    }
    for (const std::string& name : frequencies_.names()) {
        if (isGPUFrequency(name))
            gpus_.emplace_back("", frequencies_.path() + '/' + name + "/device");
    }
    std::vector<std::string> addresses;
    std::copy_if(nvidiaDevices_.names().begin(), nvidiaDevices_.names().end(), std::back_inserter(addresses),
                 isPCIAddress);
    nvidiaGPUs_.set(nvidiaDevices_.path(), addresses);
}

} // namespace vantrix
