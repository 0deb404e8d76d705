#include "monitor/system_monitor.h"

#include <QPointer>
#include <QTimer>

#include "menubar/preferences.h"
#include "support/user_defaults.h"

namespace vantrix {
namespace {

constexpr double timerTolerance = 0.1;           // of the period
constexpr double accessoriesScanInterval = 30.0; // seconds
constexpr int secondLook = 750;                  // milliseconds until there are shares of the processor
constexpr double restPerLook = 30.0;             // times as long as a look at the processes took, where that is much

} // namespace

SystemMonitor::SystemMonitor(SamplingSources sources, const UserDefaults& defaults,
                             std::unique_ptr<RepeatingTimer> timer, std::unique_ptr<TaskRunner> background,
                             Bluetooth bluetooth)
    : defaults_(defaults), samplers_(std::move(sources)), accessoriesSampler_(std::move(samplers_.sources.accessories)),
      location_(std::move(samplers_.sources.location)), timer_(std::move(timer)), background_(std::move(background)) {
    if (bluetooth.central) {
        bluetooth_.emplace(std::move(bluetooth.central), std::move(bluetooth.classicDevices),
                           std::move(bluetooth.timer));
        bluetooth_->onChange = [this] { // merged after the call that told of the change
            QMetaObject::invokeMethod(this, &SystemMonitor::mergeAccessories, Qt::QueuedConnection);
        };
    }
    location_.onChange = [this] { // the monitor owns the caller
        if (!samplers_.networkInfo)
            return;
        samplers_.networkInfo->renewWiFiClient();
        sampleNetworkInfo();
    };
    connect(&defaults, &UserDefaults::changed, this, &SystemMonitor::takeChoices);
    takeChoices();
}

/// What was read of another port must not stand in the histories of this one.
void SystemMonitor::takeChoices() {
    std::string port = storedText(defaults_, preference_key::networkInterface);
    std::string mountPoint = storedText(defaults_, preference_key::diskVolume);
    if (isDemo_ || (port == port_ && mountPoint == mountPoint_))
        return;
    samplers_.choose(port, mountPoint);
    if (port != port_)
        for (History Readings::*history : {&Readings::downloadHistory, &Readings::uploadHistory})
            (readings_.*history).clear();
    port_ = std::move(port);
    mountPoint_ = std::move(mountPoint);
}

void SystemMonitor::start() {
    start(updateInterval(defaults_));
}

void SystemMonitor::start(double interval) {
    if (isScheduled_)
        return;
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
    samplePass();
    if (!watch_.expired() && samplers_.sources.clock->uptime() >= nextProcessLook_)
        sampleProcesses();
    sampleAccessories();
    if (onUpdate)
        onUpdate();
}

void SystemMonitor::samplePass() {
    const PassScope pass = samplers_.beginPass();
    sampleCPU();
    sampleMemory();
    sampleNetwork();
    sampleNetworkInfo();
    sampleDisk();
    sampleGPU();
    sampleSensors();
    sampleBattery();
}

void SystemMonitor::sampleCPU() {
    const CPUSample* sample = samplers_.cpu.sample();
    // A baseline says nothing about the load: showing its zeros would be a lie.
    if (!sample || samplers_.cpu.isBaseline())
        return;
    store(&Readings::cpu, *sample, Reading::cpu);
    appendTo(&Readings::cpuHistory, sample->total, Reading::cpuHistory);
}

void SystemMonitor::sampleMemory() {
    const auto sample = samplers_.memory.sample();
    if (!sample)
        return;
    store(&Readings::memory, *sample, Reading::memory);
    appendTo(&Readings::memoryHistory, usedFraction(*sample), Reading::memoryHistory);
}

void SystemMonitor::sampleNetwork() {
    const auto sample = samplers_.network.sample();
    if (!sample)
        return;
    store(&Readings::network, *sample, Reading::network);
    appendTo(&Readings::downloadHistory, sample->download, Reading::downloadHistory);
    appendTo(&Readings::uploadHistory, sample->upload, Reading::uploadHistory);
}

void SystemMonitor::sampleNetworkInfo() {
    if (samplers_.networkInfo && !isDemo_)
        store(&Readings::networkInfo, samplers_.networkInfo->sample(location_.isAuthorized(), location_.status()),
              Reading::networkInfo);
}

void SystemMonitor::sampleDisk() {
    const DiskSample sample = samplers_.disk.sample();
    store(&Readings::disk, sample, Reading::disk);
    appendTo(&Readings::diskReadHistory, sample.readRate.value_or(0.0), Reading::diskReadHistory);
    appendTo(&Readings::diskWriteHistory, sample.writeRate.value_or(0.0), Reading::diskWriteHistory);
}

void SystemMonitor::sampleGPU() {
    if (!samplers_.gpu)
        return;
    const std::optional<double> load = samplers_.gpu->sample();
    if (load != readings_.gpu)
        store(&Readings::gpu, load, Reading::gpu);
    if (load)
        appendTo(&Readings::gpuHistory, *load, Reading::gpuHistory);
}

void SystemMonitor::sampleSensors() {
    const SensorsSample& sample = samplers_.sensors.sample();
    store(&Readings::sensors, sample, Reading::sensors);
    if (sample.components)
        store(&Readings::activeComponents, activeComponents_.among(*sample.components), Reading::activeComponents);
    if (sample.cpu)
        appendTo(&Readings::cpuTemperatureHistory, *sample.cpu, Reading::cpuTemperatureHistory);
    if (sample.systemPower)
        appendTo(&Readings::systemPowerHistory, *sample.systemPower, Reading::systemPowerHistory);
}

void SystemMonitor::sampleBattery() {
    if (samplers_.battery)
        store(&Readings::battery, samplers_.battery->sample(), Reading::battery);
}

std::shared_ptr<void> SystemMonitor::watchPrograms() {
    if (!samplers_.processes || isDemo_)
        return nullptr;
    if (auto watched = watch_.lock())
        return watched;
    std::shared_ptr<void> watch(static_cast<void*>(this), [monitor = QPointer<SystemMonitor>(this)](void*) {
        if (monitor)
            monitor->forgetProcesses();
    });
    watch_ = watch;
    sampleProcesses();
    QTimer::singleShot(secondLook, this, [this, asked = watch_] {
        if (!asked.expired() && readings_.processes.busiest.empty())
            sampleProcesses();
    });
    return watch;
}

std::shared_ptr<ProcessSampler> SystemMonitor::makeProcessSampler() {
    if (!samplers_.sources.processes)
        return nullptr;
    return {new ProcessSampler(*samplers_.sources.processes, *samplers_.sources.clock),
            [monitor = QPointer<SystemMonitor>(this)](ProcessSampler* sampler) {
                delete sampler;
                if (monitor)
                    monitor->samplers_.sources.processes->forget(); // what a watch needs of it is soon found again
            }};
}

void SystemMonitor::sampleProcesses() {
    const double start = samplers_.sources.clock->uptime();
    const ProcessSample* sample = samplers_.processes->sample();
    const double end = samplers_.sources.clock->uptime();
    nextProcessLook_ = end + restPerLook * (end - start); // there may be tens of thousands
    if (sample != nullptr)
        store(&Readings::processes, *sample, Reading::processes);
}

void SystemMonitor::forgetProcesses() {
    samplers_.processes.emplace(*samplers_.sources.processes, *samplers_.sources.clock);
    samplers_.sources.processes->forget();
    store(&Readings::processes, {}, Reading::processes);
}

void SystemMonitor::sampleAccessories() {
    if (!accessoriesSampler_ || isSamplingAccessories_)
        return;
    const double now = samplers_.sources.clock->uptime();
    if (lastAccessoriesSample_ && now - *lastAccessoriesSample_ < accessoriesScanInterval)
        return;
    lastAccessoriesSample_ = now;
    isSamplingAccessories_ = true;
    const auto scan = std::make_shared<std::optional<AccessoriesSampler::Scan>>();
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

void SystemMonitor::finishAccessories(std::optional<AccessoriesSampler::Scan> scan) {
    isSamplingAccessories_ = false;
    if (!scan) // no thread could be started for it
        return;
    sampledAccessories_ = std::move(scan->accessories);
    sampledDiagnostics_ = std::move(scan->diagnostics);
    mergeAccessories();
}

void SystemMonitor::mergeAccessories() {
    if (isDemo_)
        return;
    auto merged = combineAccessories(sampledAccessories_, {});
    if (bluetooth_) // in turn: a headset that is connected in both ways is one
        merged = combineAccessories(combineAccessories(merged, bluetooth_->readings()), bluetooth_->classic());
    const auto combined = batteriesOf(merged);
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
