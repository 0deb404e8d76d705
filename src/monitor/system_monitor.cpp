#include "monitor/system_monitor.h"

#include <QPointer>

#include "menubar/preferences.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

constexpr double timerTolerance = 0.1;           // of the period
constexpr double accessoriesScanInterval = 30.0; // seconds

} // namespace

SystemMonitor::SystemMonitor(SamplingSources sources, const UserDefaults& defaults,
                             std::unique_ptr<RepeatingTimer> timer, std::unique_ptr<TaskRunner> background,
                             Bluetooth bluetooth)
    : defaults_(defaults), sources_(std::move(sources)), accessoriesSampler_(std::move(sources_.accessories)),
      cpuSampler_(*sources_.cpu), memorySampler_(*sources_.memory), networkSampler_(*sources_.network, *sources_.clock),
      location_(std::move(sources_.location)), diskSampler_(*sources_.disks, *sources_.volume, *sources_.clock),
      sensorsSampler_(sources_.sensorKeys.get(), sources_.temperatures.get(), sources_.energy.get(), *sources_.clock),
      timer_(std::move(timer)), background_(std::move(background)) {
    if (sources_.networkInfo)
        networkInfoSampler_.emplace(*sources_.networkInfo);
    if (sources_.gpu)
        gpuSampler_.emplace(*sources_.gpu);
    if (sources_.battery)
        batterySampler_.emplace(*sources_.battery);
    if (bluetooth.central) {
        bluetooth_.emplace(std::move(bluetooth.central), std::move(bluetooth.classicDevices),
                           std::move(bluetooth.timer));
        bluetooth_->onChange = [this] { // merged once whatever told of the change is done
            QMetaObject::invokeMethod(this, &SystemMonitor::mergeAccessories, Qt::QueuedConnection);
        };
    }
    location_.onChange = [this] { // the monitor owns what calls it
        if (!networkInfoSampler_)
            return;
        networkInfoSampler_->renewWiFiClient();
        sampleNetworkInfo();
    };
}

void SystemMonitor::start() {
    if (isScheduled_)
        return;
    const double interval = updateInterval(defaults_);
    if (interval != readings_.interval)
        store(&Readings::interval, interval, Reading::interval);
    sample();
    scheduleTimer();
}

void SystemMonitor::setInterval(double seconds) {
    if (seconds == readings_.interval)
        return;
    store(&Readings::interval, seconds, Reading::interval);
    if (isScheduled_)
        scheduleTimer();
}

void SystemMonitor::scheduleTimer() {
    isScheduled_ = true;
    timer_->schedule(readings_.interval, readings_.interval * timerTolerance,
                     [monitor = QPointer<SystemMonitor>(this)] {
                         if (monitor)
                             monitor->sample();
                     });
}

template<typename T>
void SystemMonitor::store(T Readings::*field, const T& value, Reading reading) {
    readings_.*field = value;
    Q_EMIT changed(reading);
}

void SystemMonitor::appendTo(History Readings::*history, double value, Reading reading) {
    append(readings_.*history, value);
    Q_EMIT changed(reading);
}

void SystemMonitor::sample() {
    sampleCPU();
    sampleMemory();
    sampleNetwork();
    sampleNetworkInfo();
    sampleDisk();
    sampleGPU();
    sampleSensors();
    sampleBattery();
    sampleAccessories();
    if (onUpdate)
        onUpdate();
}

void SystemMonitor::sampleCPU() {
    const CPUSample* sample = cpuSampler_.sample();
    // A baseline says nothing about the load: showing its zeros would be a lie.
    if (!sample || cpuSampler_.isBaseline())
        return;
    store(&Readings::cpu, *sample, Reading::cpu);
    appendTo(&Readings::cpuHistory, sample->total, Reading::cpuHistory);
}

void SystemMonitor::sampleMemory() {
    const auto sample = memorySampler_.sample();
    if (!sample)
        return;
    store(&Readings::memory, *sample, Reading::memory);
    appendTo(&Readings::memoryHistory, usedFraction(*sample), Reading::memoryHistory);
}

void SystemMonitor::sampleNetwork() {
    const auto sample = networkSampler_.sample();
    if (!sample)
        return;
    store(&Readings::network, *sample, Reading::network);
    appendTo(&Readings::downloadHistory, sample->download, Reading::downloadHistory);
    appendTo(&Readings::uploadHistory, sample->upload, Reading::uploadHistory);
}

void SystemMonitor::sampleNetworkInfo() {
    if (networkInfoSampler_ && !isDemo_)
        store(&Readings::networkInfo, networkInfoSampler_->sample(location_.isAuthorized(), location_.status()),
              Reading::networkInfo);
}

void SystemMonitor::sampleDisk() {
    const DiskSample sample = diskSampler_.sample();
    store(&Readings::disk, sample, Reading::disk);
    appendTo(&Readings::diskReadHistory, sample.readRate.value_or(0.0), Reading::diskReadHistory);
    appendTo(&Readings::diskWriteHistory, sample.writeRate.value_or(0.0), Reading::diskWriteHistory);
}

void SystemMonitor::sampleGPU() {
    if (!gpuSampler_)
        return;
    const std::optional<double> load = gpuSampler_->sample();
    if (load != readings_.gpu)
        store(&Readings::gpu, load, Reading::gpu);
    if (load)
        appendTo(&Readings::gpuHistory, *load, Reading::gpuHistory);
}

void SystemMonitor::sampleSensors() {
    const SensorsSample& sample = sensorsSampler_.sample();
    store(&Readings::sensors, sample, Reading::sensors);
    if (sample.cpu)
        appendTo(&Readings::cpuTemperatureHistory, *sample.cpu, Reading::cpuTemperatureHistory);
    if (sample.systemPower)
        appendTo(&Readings::systemPowerHistory, *sample.systemPower, Reading::systemPowerHistory);
}

void SystemMonitor::sampleBattery() {
    if (batterySampler_)
        store(&Readings::battery, batterySampler_->sample(), Reading::battery);
}

void SystemMonitor::sampleAccessories() {
    if (!accessoriesSampler_ || isSamplingAccessories_)
        return;
    const double now = sources_.clock->uptime();
    if (lastAccessoriesSample_ && now - *lastAccessoriesSample_ < accessoriesScanInterval)
        return;
    lastAccessoriesSample_ = now;
    isSamplingAccessories_ = true;
    const auto scan = std::make_shared<AccessoriesSampler::Scan>();
    background_->run(
        [sampler = std::weak_ptr(accessoriesSampler_), scan] {
            if (const auto alive = sampler.lock())
                *scan = alive->scan();
        },
        [monitor = QPointer<SystemMonitor>(this), scan] {
            if (monitor)
                monitor->finishAccessories(std::move(*scan));
        });
}

void SystemMonitor::finishAccessories(AccessoriesSampler::Scan scan) {
    isSamplingAccessories_ = false;
    sampledAccessories_ = std::move(scan.accessories);
    sampledDiagnostics_ = std::move(scan.diagnostics);
    mergeAccessories();
}

void SystemMonitor::mergeAccessories() {
    if (isDemo_)
        return;
    auto combined =
        combineAccessories(sampledAccessories_, bluetooth_ ? bluetooth_->all() : std::vector<AccessoryBattery>());
    if (combined != readings_.accessories)
        store(&Readings::accessories, combined, Reading::accessories);
    store(&Readings::accessoriesDiagnostics,
          sampledDiagnostics_ + " | ble: " + (bluetooth_ ? bluetooth_->diagnostics() : std::string()),
          Reading::accessoriesDiagnostics);
}

void SystemMonitor::loadDemo() {
    isDemo_ = true;
    const double interval = readings_.interval;
    readings_ = demoReadings();
    readings_.interval = interval;
    for (int i = static_cast<int>(Reading::cpu); i < readingCount; ++i)
        Q_EMIT changed(static_cast<Reading>(i));
}

} // namespace vantrix
